#pragma once

#include <QtCore/QStringList>

namespace lanternix {

class Workspace;
struct PathItem;

/// Chooses the icon of an item.
class IconHelper {
 public:
  /// An icon of the desktop's, and the drawing of our own that stands in where no icon theme has
  /// it.
  struct Icon {
    /// Names in the icon theme, the most fitting first, or the path of an image; empty where only
    /// the drawing will do.
    QStringList names;
    /// The name of a symbol; never empty.
    QString symbol;

    friend bool operator==(const Icon &, const Icon &) = default;
  };

  explicit IconHelper(const Workspace &workspace) : m_workspace(workspace) {}

  /// A directory has the icon of folders, whatever is at its path; a file that exists its own icon,
  /// one that is missing the icon of files in general; a link the globe; a command the terminal.
  /// Asks the file system for files only, each time anew.
  Icon icon(const PathItem &item) const;

 private:
  const Workspace &m_workspace;
};

}  // namespace lanternix
