#include "Platform/Linux/SignalTerminationMonitor.h"

#include <QtCore/QLoggingCategory>

#include <atomic>
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <unistd.h>

namespace lanternix {
namespace {

Q_LOGGING_CATEGORY(terminationLog, "lanternix.termination", QtWarningMsg)

/// Where the handler writes to. A handler has no other way to know.
std::atomic<int> handlerDescriptor{-1};
static_assert(std::atomic<int>::is_always_lock_free);

/// Does only what a handler may do at any moment.
void noteSignal(int signal) {
  const int savedError = errno;
  const auto byte = static_cast<char>(signal);
  // A full pipe holds the news already.
  [[maybe_unused]] const auto written = write(handlerDescriptor, &byte, 1);
  errno = savedError;
}

std::array<int, 2> openPipe() {
  std::array<int, 2> pipe{-1, -1};
  if (pipe2(pipe.data(), O_CLOEXEC | O_NONBLOCK) != 0) {
    qCWarning(terminationLog) << "The program will end without a word:" << std::strerror(errno);
  }
  return pipe;
}

}  // namespace

SignalTerminationMonitor::SignalTerminationMonitor()
    : m_pipe(openPipe()), m_notifier(m_pipe[0], QSocketNotifier::Read) {
  if (m_pipe[0] < 0) {
    return;
  }
  connect(&m_notifier, &QSocketNotifier::activated, this, &SignalTerminationMonitor::readSignals);
  handlerDescriptor = m_pipe[1];
  struct sigaction action {};
  action.sa_handler = noteSignal;
  action.sa_flags = SA_RESTART;
  for (std::size_t i = 0; i < watched.size(); ++i) {
    sigaction(watched[i], nullptr, &m_previous[i]);
    if (m_previous[i].sa_handler != SIG_IGN) {
      sigaction(watched[i], &action, nullptr);
    }
  }
}

SignalTerminationMonitor::~SignalTerminationMonitor() {
  if (m_pipe[0] < 0) {
    return;
  }
  for (std::size_t i = 0; i < watched.size(); ++i) {
    sigaction(watched[i], &m_previous[i], nullptr);
  }
  handlerDescriptor = -1;
  m_notifier.setEnabled(false);
  close(m_pipe[0]);
  close(m_pipe[1]);
}

void SignalTerminationMonitor::readSignals() {
  std::array<char, 16> signals{};
  bool hasAny = false;
  while (read(m_pipe[0], signals.data(), signals.size()) > 0) {
    hasAny = true;
  }
  if (hasAny) {
    Q_EMIT terminationRequested();
  }
}

}  // namespace lanternix
