#include "Platform/Linux/LockFileSingleInstance.h"

#include "Platform/Linux/BaseDirectories.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QLoggingCategory>
#include <QtCore/QSocketNotifier>

#include <array>
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace lanternix {
namespace {

using namespace Qt::StringLiterals;

Q_LOGGING_CATEGORY(instanceLog, "lanternix.instance", QtWarningMsg)

constexpr mode_t ownerOnly = 0600;

/// The runtime directory, which goes with the session; the program's data directory where the
/// session has none.
QString lockDirectory() {
  QString runtimeDirectory = qEnvironmentVariable("XDG_RUNTIME_DIR");
  if (!runtimeDirectory.isEmpty() && QDir(runtimeDirectory).exists()) {
    return runtimeDirectory;
  }
  QString dataDirectory = BaseDirectories::dataHome() + "/Lanternix"_L1;
  QDir().mkpath(dataDirectory);
  return dataDirectory;
}

/// The pipe at \p path, made where it is missing. -1 when neither can be done.
int openPipe(const QByteArray &path) {
  if (mkfifo(path.constData(), ownerOnly) != 0 && errno != EEXIST) {
    return -1;
  }
  // Open in both directions the pipe always has a writer, so that it never reads as ended.
  const int descriptor = open(path.constData(), O_RDWR | O_NONBLOCK | O_CLOEXEC | O_NOFOLLOW);
  struct stat status {};
  if (descriptor >= 0 && (fstat(descriptor, &status) != 0 || !S_ISFIFO(status.st_mode))) {
    close(descriptor);
    errno = EEXIST;
    return -1;
  }
  return descriptor;
}

/// Whether \p path still leads to what is open, rather than to nothing or to a new pipe.
bool isAt(const QByteArray &path, int descriptor) {
  struct stat ofPath {};
  struct stat opened {};
  return stat(path.constData(), &ofPath) == 0 && fstat(descriptor, &opened) == 0 &&
         ofPath.st_ino == opened.st_ino && ofPath.st_dev == opened.st_dev;
}

}  // namespace

LockFileSingleInstance::~LockFileSingleInstance() {
  // Taken away under the lock, so that nobody locks a pipe that is not there any more and takes
  // himself for the one program.
  if (m_isLocked) {
    unlink(m_path.constData());
  }
  if (m_descriptor >= 0) {
    close(m_descriptor);
  }
}

bool LockFileSingleInstance::lock() {
  for (;;) {
    m_descriptor = openPipe(m_path);
    if (m_descriptor < 0 || flock(m_descriptor, LOCK_EX | LOCK_NB) != 0) {
      return false;
    }
    if (isAt(m_path, m_descriptor)) {
      return true;
    }
    close(m_descriptor);  // its holder has ended since it was opened
  }
}

bool LockFileSingleInstance::claim() {
  m_path = QFile::encodeName(lockDirectory() + "/lanternix.lock"_L1);
  m_isLocked = lock();
  if (m_descriptor < 0) {
    qCWarning(instanceLog).noquote()
        << "A second start will not find this one:" << m_path << "-" << std::strerror(errno);
    return true;  // rather twice than not at all
  }
  if (m_isLocked) {
    listen();
    return true;
  }
  const char ring = '!';
  if (write(m_descriptor, &ring, 1) != 1) {
    qCInfo(instanceLog) << "The running program has not been reached:" << std::strerror(errno);
  }
  return false;
}

void LockFileSingleInstance::listen() {
  auto *notifier = new QSocketNotifier(m_descriptor, QSocketNotifier::Read, this);
  connect(notifier, &QSocketNotifier::activated, this, &LockFileSingleInstance::answer);
}

void LockFileSingleInstance::answer() {
  std::array<char, 64> rings{};
  bool rung = false;
  while (read(m_descriptor, rings.data(), rings.size()) > 0) {
    rung = true;
  }
  if (rung) {
    Q_EMIT showRequested();
  }
}

}  // namespace lanternix
