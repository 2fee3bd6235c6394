#pragma once

#include "Platform/UserDefaults.h"

#include <QtCore/QHash>
#include <QtCore/QSettings>
#include <QtCore/QVariant>

namespace lanternix {

/// Preferences in a configuration file that people can read and edit: "key=value" lines under
/// [General]. All values are text there, so what reads as a value of the wanted type is one.
/// Booleans are "true" and "false", dates ISO 8601 with an offset, data "@ByteArray(...)".
///
/// A write changes the one value and leaves the rest of the file as it is, whatever it holds. What
/// cannot be written is logged, and holds for as long as the program runs.
class SettingsUserDefaults final : public UserDefaults {
 public:
  /// The store in the file at \p path, which need not exist.
  explicit SettingsUserDefaults(const QString &path);

  StoredValue<bool> boolean(const char *key) const override;
  StoredValue<qint64> integer(const char *key) const override;
  StoredValue<double> real(const char *key) const override;
  StoredValue<QString> string(const char *key) const override;
  StoredValue<QByteArray> data(const char *key) const override;
  StoredValue<Date> date(const char *key) const override;

  void setBoolean(bool value, const char *key) override;
  void setInteger(qint64 value, const char *key) override;
  void setReal(double value, const char *key) override;
  void setString(const QString &value, const char *key) override;
  void setData(const QByteArray &value, const char *key) override;
  /// A date that no calendar reaches is not written.
  void setDate(const Date &value, const char *key) override;

 private:
  template <typename Value, typename Parse>
  StoredValue<Value> read(const char *key, Parse parse) const;
  /// \p value is text or data.
  void write(const QVariant &value, const char *key);

  QString m_path;
  /// The file as it was at the start; only read from.
  QSettings m_settings;
  /// What was written since.
  QHash<QString, QVariant> m_written;
};

}  // namespace lanternix
