#include "Platform/Linux/SpawnProcessLauncher.h"

#include <QtCore/QFile>
#include <QtCore/QLoggingCategory>
#include <QtCore/QSocketNotifier>

#include <cstring>
#include <memory>
#include <signal.h>
#include <spawn.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace lanternix {
namespace {

Q_LOGGING_CATEGORY(processLog, "lanternix.process", QtWarningMsg)

constexpr int firstDescriptorOfOurs = STDERR_FILENO + 1;

/// What the child is freed from: our descriptors, signal mask, dispositions and terminal.
class SpawnSettings {
 public:
  SpawnSettings() {
    posix_spawn_file_actions_init(&m_actions);
    posix_spawn_file_actions_addclosefrom_np(&m_actions, firstDescriptorOfOurs);
    posix_spawnattr_init(&m_attributes);
    posix_spawnattr_setflags(&m_attributes,
                             POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF | POSIX_SPAWN_SETSID);
    sigset_t signals;
    sigemptyset(&signals);
    posix_spawnattr_setsigmask(&m_attributes, &signals);
    // Not sigfillset, which leaves out the signals that the C library keeps for itself: the child
    // would start with those ignored.
    std::memset(&signals, 0xff, sizeof signals);
    posix_spawnattr_setsigdefault(&m_attributes, &signals);
  }
  ~SpawnSettings() {
    posix_spawnattr_destroy(&m_attributes);
    posix_spawn_file_actions_destroy(&m_actions);
  }
  Q_DISABLE_COPY_MOVE(SpawnSettings)

  const posix_spawn_file_actions_t *actions() const { return &m_actions; }
  const posix_spawnattr_t *attributes() const { return &m_attributes; }

 private:
  posix_spawn_file_actions_t m_actions{};
  posix_spawnattr_t m_attributes{};
};

/// The operating system's form of an argument list. Argument zero is the path itself.
class ArgumentVector {
 public:
  ArgumentVector(const QString &launchPath, const QStringList &arguments) {
    m_texts.push_back(QFile::encodeName(launchPath));
    for (const QString &argument : arguments) {
      m_texts.push_back(argument.toLocal8Bit());
    }
    for (QByteArray &text : m_texts) {
      m_pointers.push_back(text.data());
    }
    m_pointers.push_back(nullptr);
  }

  const char *path() const { return m_texts.front().constData(); }
  char *const *pointers() { return m_pointers.data(); }

 private:
  std::vector<QByteArray> m_texts;
  std::vector<char *> m_pointers;
};

/// Becomes readable when the child ends; reaps it and is done.
class ChildWatch : public QSocketNotifier {
 public:
  ChildWatch(pid_t child, int descriptor, QObject *parent)
      : QSocketNotifier(descriptor, QSocketNotifier::Read, parent) {
    connect(this, &QSocketNotifier::activated, this, [this, child] {
      if (waitpid(child, nullptr, WNOHANG) != 0) {
        setEnabled(false);
        deleteLater();
      }
    });
  }
  ~ChildWatch() override {
    setEnabled(false);
    close(static_cast<int>(socket()));
  }
};

/// A descriptor for \p child, or -1. Asked of the kernel directly, because the C library's header
/// for it is not fit for C++ everywhere.
int openProcess(pid_t child) {
  return static_cast<int>(syscall(SYS_pidfd_open, child, 0));
}

}  // namespace

bool SpawnProcessLauncher::launch(const QString &launchPath, const QStringList &arguments) {
  const SpawnSettings settings;
  ArgumentVector argumentVector(launchPath, arguments);
  pid_t child = 0;
  const int error = posix_spawn(&child, argumentVector.path(), settings.actions(),
                                settings.attributes(), argumentVector.pointers(), environ);
  if (error != 0) {
    qCInfo(processLog) << "Cannot start" << launchPath << ":" << std::strerror(error);
    return false;
  }
  const int descriptor = openProcess(child);
  if (descriptor < 0) {
    qCInfo(processLog) << "Cannot watch process" << child << ":" << std::strerror(errno);
    return true;
  }
  new ChildWatch(child, descriptor, &m_watches);
  return true;
}

}  // namespace lanternix
