#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>

namespace lanternix {

/// The desktop's applications. Every call hands its request over and returns without waiting; what
/// fails afterwards is logged.
class Workspace {
 public:
  virtual ~Workspace() = default;

  /// Opens the file at \p path with the default application of its type.
  virtual void openFile(const QString &path) = 0;

  /// Opens \p url, handed over exactly as written, with the default application of its scheme.
  virtual void openUrl(const QString &url) = 0;

  /// Whether an application with this identifier (its desktop entry's name without ".desktop") is
  /// installed.
  virtual bool hasApplication(const QString &identifier) const = 0;

  /// Opens the directory at \p path with the application \p identifier.
  virtual void openDirectory(const QString &path, const QString &identifier) = 0;

  /// Shows the entry at \p path selected in its enclosing folder. Where no file manager can, the
  /// enclosing folder opens in the default one.
  virtual void revealInFileViewer(const QString &path) = 0;

  /// The icon of what is at \p path: the names under which an icon theme may have it, the most
  /// fitting first, or the path of an image. Empty when nothing is there. Asks the file system.
  virtual QStringList iconNamesForFile(const QString &path) const = 0;

  /// The same for folders and for files in general, whatever is on the disk.
  virtual QStringList iconNamesForFolders() const = 0;
  virtual QStringList iconNamesForAnyFile() const = 0;
};

}  // namespace lanternix
