#pragma once

#include <QtCore/QByteArray>

namespace lanternix {

/// A variable of the environment, set as long as this object lives. Then it has its old value, or
/// none, again.
class TemporaryVariable {
 public:
  TemporaryVariable(const char *name, const QByteArray &value)
      : m_name(name), m_wasSet(qEnvironmentVariableIsSet(name)), m_previous(qgetenv(name)) {
    qputenv(name, value);
  }
  ~TemporaryVariable() {
    if (m_wasSet) {
      qputenv(m_name, m_previous);
    } else {
      qunsetenv(m_name);
    }
  }
  Q_DISABLE_COPY_MOVE(TemporaryVariable)

 private:
  const char *m_name;
  bool m_wasSet;
  QByteArray m_previous;
};

}  // namespace lanternix
