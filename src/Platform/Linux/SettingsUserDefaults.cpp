#include "Platform/Linux/SettingsUserDefaults.h"

#include "Platform/Linux/BaseDirectories.h"
#include "Platform/Linux/IniText.h"
#include "Platform/Linux/PosixFileManager.h"

#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QLoggingCategory>

#include <cmath>

namespace lanternix {

using namespace Qt::StringLiterals;

namespace {

Q_LOGGING_CATEGORY(preferences, "lanternix.preferences", QtWarningMsg)

/// The text of a stored value; none for data and for the lists that unquoted commas make.
std::optional<QString> textOf(const QVariant &value) {
  return value.typeId() == QMetaType::QString ? std::optional(value.toString()) : std::nullopt;
}

}  // namespace

UserDefaults &UserDefaults::standard() {
  static SettingsUserDefaults store(BaseDirectories::configHome() + u"/Lanternix/Lanternix.conf"_s);
  return store;
}

SettingsUserDefaults::SettingsUserDefaults(const QString &path)
    : m_path(path), m_settings(path, QSettings::NativeFormat) {
  m_settings.allKeys();  // reads every section
  if (m_settings.status() != QSettings::NoError) {
    qCWarning(preferences) << path << "can be read in part at best";
  }
}

template <typename Value, typename Parse>
StoredValue<Value> SettingsUserDefaults::read(const char *key, Parse parse) const {
  using State = typename StoredValue<Value>::State;
  const QLatin1StringView name(key);
  const QVariant stored = m_written.value(name, m_settings.value(name));
  if (!stored.isValid()) {
    return {State::absent, {}};
  }
  const std::optional<Value> value = parse(stored);
  if (!value) {
    qCInfo(preferences) << key << "holds a value of another type:" << stored;
    return {State::wrongType, {}};
  }
  return {State::present, *value};
}

StoredValue<bool> SettingsUserDefaults::boolean(const char *key) const {
  return read<bool>(key, [](const QVariant &stored) -> std::optional<bool> {
    const std::optional<QString> text = textOf(stored);
    if (text != u"true"_s && text != u"false"_s) {
      return {};
    }
    return text == u"true"_s;
  });
}

StoredValue<qint64> SettingsUserDefaults::integer(const char *key) const {
  return read<qint64>(key, [](const QVariant &stored) -> std::optional<qint64> {
    bool isInteger = false;
    const qint64 value = textOf(stored).value_or(QString()).toLongLong(&isInteger, 10);
    return isInteger ? std::optional(value) : std::nullopt;
  });
}

StoredValue<double> SettingsUserDefaults::real(const char *key) const {
  return read<double>(key, [](const QVariant &stored) -> std::optional<double> {
    bool isNumber = false;
    const double value = textOf(stored).value_or(QString()).toDouble(&isNumber);
    return isNumber && std::isfinite(value) ? std::optional(value) : std::nullopt;
  });
}

StoredValue<QString> SettingsUserDefaults::string(const char *key) const {
  return read<QString>(key, textOf);
}

StoredValue<QByteArray> SettingsUserDefaults::data(const char *key) const {
  return read<QByteArray>(key, [](const QVariant &stored) {
    return stored.typeId() == QMetaType::QByteArray ? std::optional(stored.toByteArray())
                                                    : std::nullopt;
  });
}

StoredValue<Date> SettingsUserDefaults::date(const char *key) const {
  return read<Date>(key, [](const QVariant &stored) -> std::optional<Date> {
    const QDateTime dateTime =
        QDateTime::fromString(textOf(stored).value_or(QString()), Qt::ISODateWithMs);
    // Without an offset it would be another moment wherever it is read.
    if (!dateTime.isValid() || dateTime.timeSpec() == Qt::LocalTime) {
      return {};
    }
    return Date::fromDateTime(dateTime);
  });
}

void SettingsUserDefaults::setBoolean(bool value, const char *key) {
  write(value ? u"true"_s : u"false"_s, key);
}

void SettingsUserDefaults::setInteger(qint64 value, const char *key) {
  write(QString::number(value), key);
}

void SettingsUserDefaults::setReal(double value, const char *key) {
  write(QString::number(value, 'g', QLocale::FloatingPointShortest), key);
}

void SettingsUserDefaults::setString(const QString &value, const char *key) {
  write(value, key);
}

void SettingsUserDefaults::setData(const QByteArray &value, const char *key) {
  write(value, key);
}

void SettingsUserDefaults::setDate(const Date &value, const char *key) {
  const QString text = value.toDateTime().toUTC().toString(Qt::ISODateWithMs);
  if (text.isEmpty()) {
    qCWarning(preferences) << key << "cannot be set to a date beyond every calendar";
    return;
  }
  write(text, key);
}

void SettingsUserDefaults::write(const QVariant &value, const char *key) {
  m_written.insert(QLatin1StringView(key), value);
  PosixFileManager files;
  // As it is now, because a person or another program may have edited it meanwhile.
  const std::optional<QByteArray> text = files.contents(m_path);
  const bool mayReplace = text.has_value() || !QFileInfo::exists(m_path);
  if (!mayReplace || !files.createDirectory(QFileInfo(m_path).path()) ||
      !files.writeAtomically(withIniValue(text.value_or(QByteArray()), key, value), m_path)) {
    qCWarning(preferences) << key << "cannot be saved to" << m_path;
  }
}

}  // namespace lanternix
