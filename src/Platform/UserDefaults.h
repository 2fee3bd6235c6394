#pragma once

#include "Models/Date.h"

#include <QtCore/QByteArray>
#include <QtCore/QString>

namespace lanternix {

/// What a read of a preference found. Absent and wrong-typed values are told apart, and both fall
/// back to the reader's own default.
template <typename Value>
struct StoredValue {
  enum class State { absent, wrongType, present };

  State state = State::absent;
  Value value{};

  Value valueOr(Value fallback) const { return state == State::present ? value : fallback; }
};

/// The store of the user's preferences. Each write reaches the disk before it returns; a write that
/// fails is logged.
class UserDefaults {
 public:
  virtual ~UserDefaults() = default;

  /// The program's own store, made at the first call.
  static UserDefaults &standard();

  virtual StoredValue<bool> boolean(const char *key) const = 0;
  virtual StoredValue<qint64> integer(const char *key) const = 0;
  /// A finite number.
  virtual StoredValue<double> real(const char *key) const = 0;
  virtual StoredValue<QString> string(const char *key) const = 0;
  virtual StoredValue<QByteArray> data(const char *key) const = 0;
  virtual StoredValue<Date> date(const char *key) const = 0;

  virtual void setBoolean(bool value, const char *key) = 0;
  virtual void setInteger(qint64 value, const char *key) = 0;
  virtual void setReal(double value, const char *key) = 0;
  virtual void setString(const QString &value, const char *key) = 0;
  virtual void setData(const QByteArray &value, const char *key) = 0;
  /// Kept to the millisecond.
  virtual void setDate(const Date &value, const char *key) = 0;
};

}  // namespace lanternix
