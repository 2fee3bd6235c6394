#pragma once

#include <QtCore/QString>

class QPixmap;

namespace lanternix {

/// Draws the settings in both appearances, at the scale that the program runs at: every tab in its
/// states, both editors, new and editing, the menus of the rows, and every alert over its tab; some
/// of them with names that are long or run from right to left, and in a large font.
class SettingsGallery {
 public:
  /// The pictures go into \p directory, as settings-<what>-<appearance>-<scale>x.png.
  explicit SettingsGallery(QString directory);

  /// How many pictures were written; throws a HarnessError for one that was not.
  int draw();

 private:
  void save(const QPixmap &drawn, const QString &name, const QString &appearance) const;

  QString m_directory;
};

}  // namespace lanternix
