#pragma once

#include "Platform/TerminationMonitor.h"

#include <QtCore/QSocketNotifier>

#include <array>
#include <csignal>

namespace lanternix {

/// Turns the signals by which programs are ended (SIGTERM, an interrupt typed at the terminal, the
/// end of the terminal) into events of the loop. A signal that is ignored when this is made stays
/// ignored: whoever started the program wanted that.
///
/// The signals are caught rather than blocked, because a child process would inherit the blockade,
/// whoever starts it. One at a time; only with a QCoreApplication.
class SignalTerminationMonitor : public TerminationMonitor {
  Q_OBJECT

 public:
  SignalTerminationMonitor();
  ~SignalTerminationMonitor() override;

 private:
  static constexpr std::array watched{SIGTERM, SIGINT, SIGHUP};

  void readSignals();

  std::array<struct sigaction, watched.size()> m_previous{};
  std::array<int, 2> m_pipe;  // the end for reading, the end for writing
  QSocketNotifier m_notifier;
};

}  // namespace lanternix
