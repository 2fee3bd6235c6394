#include "support/ChildProcess.h"

#include "support/HarnessError.h"
#include "support/WaitUntil.h"

#include <QtCore/QStandardPaths>

#include <csignal>
#include <sys/prctl.h>
#include <sys/resource.h>

namespace lanternix {

using namespace Qt::StringLiterals;

ChildProcess::ChildProcess(QString program, QString debianPackage)
    : m_program(std::move(program)), m_debianPackage(std::move(debianPackage)) {
  m_process.setChildProcessModifier([this] {
    ::prctl(PR_SET_PDEATHSIG, SIGKILL);
    if (!m_mayWriteFiles) {
      const rlimit none{0, 0};
      ::setrlimit(RLIMIT_FSIZE, &none);
      ::signal(SIGXFSZ, SIG_IGN);  // NOLINT(cert-err33-c): the write fails instead of killing
    }
  });
}

ChildProcess::~ChildProcess() {
  stop();
}

void ChildProcess::start(const QStringList &arguments, const QProcessEnvironment &environment) {
  const QString executable = QStandardPaths::findExecutable(m_program);
  if (executable.isEmpty()) {
    throw HarnessError(u"%1 is not installed; on Debian it is in the package %2"_s.arg(
        m_program, m_debianPackage));
  }
  m_process.setProcessEnvironment(environment);
  m_process.start(executable, arguments);
  if (!m_process.waitForStarted()) {
    throw HarnessError(u"%1 did not start: %2"_s.arg(executable, m_process.errorString()));
  }
}

void ChildProcess::stop() {
  if (m_process.state() == QProcess::NotRunning) {
    return;
  }
  constexpr int graceMilliseconds = 3000;
  m_process.terminate();
  if (!m_process.waitForFinished(graceMilliseconds)) {
    m_process.kill();
    m_process.waitForFinished(graceMilliseconds);
  }
}

void ChildProcess::kill() {
  m_process.kill();
  m_process.waitForFinished();
}

bool ChildProcess::isRunning() const {
  return m_process.state() == QProcess::Running;
}

std::optional<int> ChildProcess::exitCode() const {
  if (m_process.state() != QProcess::NotRunning) {
    return std::nullopt;
  }
  return m_process.exitStatus() == QProcess::NormalExit ? m_process.exitCode() : -1;
}

QByteArray ChildProcess::firstLine() {
  const bool arrived = waitUntil([this] { return output().contains('\n') || !isRunning(); });
  const qsizetype end = m_output.indexOf('\n');
  if (!arrived || end < 0) {
    throw HarnessError(u"%1 did not come up: %2"_s.arg(m_program, QString::fromUtf8(errors())));
  }
  return m_output.first(end);
}

const QByteArray &ChildProcess::output() {
  return m_output += m_process.readAllStandardOutput();
}

const QByteArray &ChildProcess::errors() {
  return m_errors += m_process.readAllStandardError();
}

}  // namespace lanternix
