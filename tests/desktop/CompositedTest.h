#pragma once

#include "desktop/DesktopTest.h"
#include "support/Compositor.h"

#include <QtCore/QMargins>
#include <QtGui/QColor>

#include <array>

namespace lanternix {

/// A test that looks at the panel's outline on a desktop where windows may be blended.
class CompositedTest : public DesktopTest {
 protected:
  enum class Compositing { off, on };

  explicit CompositedTest(
      Compositing compositing,
      DesktopSession::WithManager withManager = DesktopSession::WithManager::yes,
      QSize screenSize = {1280, 900},
      VirtualDisplay::Outputs outputs = VirtualDisplay::Outputs::one);

  /// What the shadow takes around the frame at scale 1.
  static constexpr QMargins shadow{36, 28, 36, 48};

  void startCompositor();
  void stopCompositor() { m_compositor->stop(); }

  /// Covers everything that the panel's shadow may fall on with a red window.
  OtherClient &openBackdrop();
  /// The colours of the backdrop, and of nothing that the program draws.
  static bool isBackdrop(const QColor &color) { return color == QColor(Qt::red); }
  static bool isDarkenedBackdrop(const QColor &color);

  QMargins frameExtents();
  /// The panel without its shadow, on the screen.
  QRect frame() { return panelGeometry().marginsRemoved(frameExtents()); }
  /// Where a panel of this size appears: centred on the work area, 60 pixels up.
  QRect placed(QSize size);

  QColor onScreen(QPoint point);
  bool becomesBackdrop(QPoint point);
  bool becomesDarkenedBackdrop(QPoint point);
  bool becomesShadowless();
  bool becomesShadowed();

 private:
  std::unique_ptr<Compositor> m_compositor;
  std::unique_ptr<OtherClient> m_backdrop;
};

}  // namespace lanternix
