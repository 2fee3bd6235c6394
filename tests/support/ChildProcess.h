#pragma once

#include <QtCore/QProcess>
#include <QtCore/QProcessEnvironment>
#include <QtCore/QStringList>

#include <optional>

namespace lanternix {

/// A process of the session under test, which ends with this object and, should the driver be
/// killed, with the driver.
class ChildProcess {
 public:
  /// \p debianPackage is named to the person at the machine when \p program is not installed.
  ChildProcess(QString program, QString debianPackage);
  ~ChildProcess();
  Q_DISABLE_COPY_MOVE(ChildProcess)

  /// From its start on, lets every write to a file fail, as on a full disk. Directories can still
  /// be made.
  void forbidFileWrites() { m_mayWriteFiles = false; }

  /// Starts the program. Throws when it cannot be started.
  void start(const QStringList &arguments, const QProcessEnvironment &environment);

  /// Asks it to end (SIGTERM), then makes it. Harmless when it is not running.
  void stop();

  /// Ends it without a chance to put anything in order (SIGKILL).
  void kill();

  bool isRunning() const;
  qint64 processId() const { return m_process.processId(); }
  /// Only after it has ended by itself; none while it runs, -1 when it crashed.
  std::optional<int> exitCode() const;

  /// The first line it writes to standard output, for which this waits.
  QByteArray firstLine();
  /// Everything that it has written so far.
  const QByteArray &output();
  const QByteArray &errors();

 private:
  QString m_program;
  QString m_debianPackage;
  bool m_mayWriteFiles = true;
  QProcess m_process;
  QByteArray m_output;
  QByteArray m_errors;
};

}  // namespace lanternix
