#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QString>
#include <QtCore/QTemporaryDir>

#include <array>
#include <cstddef>
#include <optional>

namespace lanternix {

/// A home directory that lives as long as this object. Meanwhile HOME and the base directories of
/// the desktop point into it, so that the code under test meets real files and never the
/// developer's own. Nothing exists below the root until somebody creates it.
class TemporaryHome {
 public:
  TemporaryHome() {
    set(0, root());
    set(1, dataHome());
    set(2, configHome());
    set(3, stateHome());
    set(4, cacheHome());
    set(5, runtimeDirectory());
  }

  ~TemporaryHome() {
    for (std::size_t i = 0; i < names.size(); ++i) {
      if (m_previous[i].has_value()) {
        qputenv(names[i], *m_previous[i]);
      } else {
        qunsetenv(names[i]);
      }
    }
  }

  Q_DISABLE_COPY_MOVE(TemporaryHome)

  QString root() const { return m_directory.path(); }
  QString dataHome() const { return m_directory.filePath(QStringLiteral("data")); }
  QString configHome() const { return m_directory.filePath(QStringLiteral("config")); }
  QString stateHome() const { return m_directory.filePath(QStringLiteral("state")); }
  QString cacheHome() const { return m_directory.filePath(QStringLiteral("cache")); }
  QString runtimeDirectory() const { return m_directory.filePath(QStringLiteral("runtime")); }

  /// Where the program keeps its data file.
  QString dataFile() const { return dataHome() + QStringLiteral("/Lanternix/data.json"); }
  /// Where the program keeps its backups.
  QString backupDirectory() const { return dataHome() + QStringLiteral("/Lanternix/backups"); }
  /// Where the program keeps its preferences.
  QString preferencesFile() const {
    return configHome() + QStringLiteral("/Lanternix/Lanternix.conf");
  }

  /// Writes a file anywhere, with the directories that lead to it. True when that worked.
  static bool write(const QString &path, const QByteArray &bytes) {
    QDir().mkpath(path.left(path.lastIndexOf(u'/')));
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.flush();
  }

  /// The content of a file, or none when it cannot be read.
  static std::optional<QByteArray> read(const QString &path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
      return {};
    }
    return file.readAll();
  }

 private:
  static constexpr std::array<const char *, 6> names{
      "HOME",           "XDG_DATA_HOME",  "XDG_CONFIG_HOME",
      "XDG_STATE_HOME", "XDG_CACHE_HOME", "XDG_RUNTIME_DIR"};

  void set(std::size_t index, const QString &value) {
    if (qEnvironmentVariableIsSet(names[index])) {
      m_previous[index] = qgetenv(names[index]);
    }
    qputenv(names[index], QFile::encodeName(value));
  }

  QTemporaryDir m_directory;
  std::array<std::optional<QByteArray>, 6> m_previous;
};

}  // namespace lanternix
