#pragma once

#include <QtCore/QString>

namespace lanternix {

/// Draws the settings in both appearances, at the scale that the program runs at: every tab in its
/// states, both editors, new and editing, the menus of the rows, and every alert over its tab.
class SettingsGallery {
 public:
  /// The pictures go into \p directory, as settings-<what>-<appearance>-<scale>x.png.
  explicit SettingsGallery(QString directory);

  /// How many pictures were written; throws a HarnessError for one that was not.
  int draw();

 private:
  QString m_directory;
};

}  // namespace lanternix
