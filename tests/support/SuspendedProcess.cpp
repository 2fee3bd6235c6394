#include "support/SuspendedProcess.h"

#include "support/HarnessError.h"
#include "support/WaitUntil.h"

#include <QtCore/QFile>

#include <csignal>

namespace lanternix {

using namespace Qt::StringLiterals;

namespace {

/// As the system's table of processes tells it: 'T' when it is stopped.
char stateOf(pid_t process) {
  QFile file(u"/proc/%1/stat"_s.arg(process));
  const QByteArray line = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
  // Behind the program's name, which is in parentheses and may hold any.
  const qsizetype name = line.lastIndexOf(')');
  return name >= 0 && name + 2 < line.size() ? line.at(name + 2) : '\0';
}

}  // namespace

SuspendedProcess::SuspendedProcess(qint64 processId) : m_processId(static_cast<pid_t>(processId)) {
  // None and the negative ones would stand for whole groups of processes.
  if (m_processId <= 0 || ::kill(m_processId, SIGSTOP) != 0) {
    throw HarnessError(u"the process %1 cannot be stopped"_s.arg(processId));
  }
  if (!waitUntil([this] { return stateOf(m_processId) == 'T'; })) {
    ::kill(m_processId, SIGCONT);
    throw HarnessError(u"the process %1 does not stand still"_s.arg(processId));
  }
}

SuspendedProcess::~SuspendedProcess() {
  ::kill(m_processId, SIGCONT);
}

}  // namespace lanternix
