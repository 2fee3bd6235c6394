#include "Platform/Linux/LockFileSingleInstance.h"

#include "Platform/ActivationToken.h"
#include "Platform/Linux/BaseDirectories.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QLoggingCategory>
#include <QtCore/QSocketNotifier>

#include <array>
#include <cerrno>
#include <climits>
#include <cstring>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

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

constexpr char fieldEnd = '\t';
constexpr char lineEnd = '\n';

/// A second start's line. Short enough for the pipe to take it in one piece, so that the lines of
/// two do not mix; a token that does not fit in is left out.
QByteArray lineFor(const ActivationToken &token) {
  const QByteArray fields = token.token.toUtf8() + fieldEnd + token.startupId.toUtf8();
  const bool fits =
      fields.size() < PIPE_BUF && fields.count(fieldEnd) == 1 && !fields.contains(lineEnd);
  return (fits ? fields : QByteArray()) + lineEnd;
}

ActivationToken tokenIn(const QByteArray &line) {
  const QByteArrayList fields = line.split(fieldEnd);
  return {.token = QString::fromUtf8(fields.value(0)),
          .startupId = QString::fromUtf8(fields.value(1))};
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

bool LockFileSingleInstance::claim(const ActivationToken &token) {
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
  ring(token);
  return false;
}

void LockFileSingleInstance::ring(const ActivationToken &token) {
  const QByteArray line = lineFor(token);
  if (write(m_descriptor, line.constData(), static_cast<size_t>(line.size())) != line.size()) {
    qCInfo(instanceLog) << "The running program has not been reached:" << std::strerror(errno);
  }
}

void LockFileSingleInstance::listen() {
  auto *notifier = new QSocketNotifier(m_descriptor, QSocketNotifier::Read, this);
  connect(notifier, &QSocketNotifier::activated, this, &LockFileSingleInstance::answer);
}

void LockFileSingleInstance::answer() {
  QByteArray rings;
  std::array<char, PIPE_BUF> part{};
  ssize_t length = 0;
  while ((length = read(m_descriptor, part.data(), part.size())) > 0) {
    rings.append(part.data(), length);
  }
  QByteArrayList lines = rings.split(lineEnd);
  lines.removeLast();  // what follows the last line's end
  for (const QByteArray &line : std::as_const(lines)) {
    Q_EMIT requested(Request::showPanel, tokenIn(line));
  }
}

}  // namespace lanternix
