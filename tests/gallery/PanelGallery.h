#pragma once

#include "Models/PanelItemSize.h"
#include "gallery/PanelScene.h"

#include <QtCore/QString>

namespace lanternix {

/// Draws the panel with its shadow, as it is where windows are blended, in every combination of
/// appearance, density and scene, at the scale that the program runs at.
class PanelGallery {
 public:
  /// The pictures go into \p directory, as panel-<scene>-<appearance>-<density>-<scale>x.png.
  explicit PanelGallery(QString directory);

  /// How many pictures were written; throws a HarnessError for one that was not.
  int draw();

 private:
  void drawScene(const QString &scene, const QString &appearance, PanelItemSize size);

  QString m_directory;
};

}  // namespace lanternix
