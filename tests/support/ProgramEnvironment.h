#pragma once

#include <QtCore/QJsonArray>
#include <QtCore/QJsonObject>
#include <QtCore/QProcessEnvironment>
#include <QtCore/QTemporaryDir>

#include <optional>

namespace lanternix {

/// A home directory of its own for a program under test, with nothing of the person's who runs the
/// tests: fresh XDG directories, the C.UTF-8 locale, no settings of any desktop or toolkit.
class ProgramEnvironment {
 public:
  ProgramEnvironment();

  /// What the program is to be started with; DISPLAY and the bus are the session's to add.
  QProcessEnvironment variables() const;
  /// Adds or replaces a variable for programs started from now on.
  void set(const QString &name, const QString &value) { m_variables.insert(name, value); }

  QString home() const { return m_directory.path(); }
  /// A path below the home directory.
  QString path(const QString &relative) const { return m_directory.filePath(relative); }
  QString dataFile() const;
  QString preferencesFile() const;

  /// Writes \p bytes to the file at \p path, whose directories are made where they are missing.
  static void write(const QString &path, const QByteArray &bytes);
  /// The file's bytes; none when there is no such file.
  static std::optional<QByteArray> read(const QString &path);

  /// Writes the lines of the "[General]" section of the preferences, such as "panelWidth=820".
  void writePreferences(const QByteArray &lines);
  /// The value of one preference as it is written in the file; none when it is absent.
  std::optional<QString> preference(const QString &key) const;

  /// The data file as it stands. An empty object when it is missing or no JSON.
  QJsonObject data() const;
  /// The first item of the data file with this name; an empty object when there is none.
  QJsonObject item(const QString &name) const;

  /// A command line that leaves a mark named \p name in the home directory.
  QString marking(const QString &name) const;
  /// Whether the mark is there now.
  bool isMarked(const QString &name) const;
  /// Whether the mark appears.
  bool becomesMarked(const QString &name) const;

  /// Installs an application that writes the arguments it is started with, one a line, to the file
  /// returned, and makes it the default for each of \p mimeTypes ("x-scheme-handler/https",
  /// "inode/directory" ...). A later start writes its own in their place.
  QString installApplication(const QString &identifier, const QStringList &mimeTypes);
  /// The arguments of every start of the application with the file \p record, in any order.
  static QStringList starts(const QString &record);

 private:
  QTemporaryDir m_directory;
  QProcessEnvironment m_variables;
  QByteArray m_defaultApplications;
};

}  // namespace lanternix
