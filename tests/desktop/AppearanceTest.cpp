#include "desktop/DesktopTest.h"
#include "desktop/PortalService.h"

#include <QtCore/QHash>

#include <algorithm>

namespace lanternix {
namespace {

using namespace Qt::StringLiterals;

const QString look = u"org.freedesktop.appearance"_s;
constexpr quint32 dark = 1;
constexpr quint32 light = 2;

/// The program on a desktop whose portal tells how programs shall look.
class AppearanceTest : public DesktopTest {
 protected:
  PortalService::Settings saying(const QString &name, const QVariant &value) {
    return {{look, {{name, value}}}};
  }

  QString busAddress() { return session().bus()->address(); }

  /// The colour that most of the panel has.
  QColor background() {
    const QImage panel = picture();
    QHash<QRgb, int> counts;
    for (int y = 0; y < panel.height(); ++y) {
      for (int x = 0; x < panel.width(); ++x) {
        ++counts[panel.pixel(x, y)];
      }
    }
    const auto most = std::ranges::max_element(counts);
    return most == counts.end() ? QColor() : QColor(most.key());
  }

  bool isDark() { return background() == QColor(0x262629); }
  bool isLight() { return background() == QColor(0xF6F6F7); }
  bool becomesDark() {
    return waitUntil([this] { return isDark(); });
  }
  bool becomesLight() {
    return waitUntil([this] { return isLight(); });
  }
};

TEST_F(AppearanceTest, WithoutAPortal_ThePanelIsLight) {
  start(commands({u"Build"_s}));
  EXPECT_TRUE(becomesLight());
}

TEST_F(AppearanceTest, PortalThatSaysDark_MakesTheFirstPictureDark) {
  const PortalService portal(busAddress(), saying(u"color-scheme"_s, dark));
  start(commands({u"Build"_s}));
  settledPicture();
  EXPECT_TRUE(isDark());
}

TEST_F(AppearanceTest, SwitchOfTheScheme_ShowsInTheOpenPanel) {
  PortalService portal(busAddress(), saying(u"color-scheme"_s, dark));
  start(commands({u"Build"_s}));
  ASSERT_TRUE(becomesDark());
  portal.change(look, u"color-scheme"_s, light);
  EXPECT_TRUE(becomesLight());
  portal.change(look, u"color-scheme"_s, dark);
  EXPECT_TRUE(becomesDark());
}

TEST_F(AppearanceTest, SwitchWhileThePanelIsHidden_ShowsInItsNextPicture) {
  PortalService portal(busAddress(), saying(u"color-scheme"_s, dark));
  startHidden(commands({u"Build"_s}));
  portal.change(look, u"color-scheme"_s, light);
  showByShortcut();
  EXPECT_TRUE(becomesLight());
}

TEST_F(AppearanceTest, TheDesktopsAccent_IsTheSelections) {
  const PortalService portal(busAddress(),
                             saying(u"accent-color"_s, PortalService::color(1, 0, 0)));
  start(commands({u"Build"_s}));
  const QRect row = selectNextRow();
  const QColor selected = settledPicture().pixelColor(row.center().x(), row.top() + 2);
  EXPECT_GT(selected.red(), selected.green() + 20);
  EXPECT_GT(selected.red(), selected.blue() + 20);
}

TEST_F(AppearanceTest, PaletteOfTheDesktopsOwnSettings_IsKept) {
  // What Qt itself reads on a Plasma desktop.
  session().home().set(u"XDG_CURRENT_DESKTOP"_s, u"KDE"_s);
  session().home().set(u"KDE_SESSION_VERSION"_s, u"5"_s);
  ProgramEnvironment::write(session().home().path(u".config/kdeglobals"_s),
                            "[Colors:Window]\n"
                            "BackgroundNormal=40,44,60\n"
                            "ForegroundNormal=240,240,250\n"
                            "[Colors:View]\n"
                            "BackgroundNormal=30,34,50\n"
                            "ForegroundNormal=240,240,250\n"
                            "[Colors:Button]\n"
                            "BackgroundNormal=50,54,70\n"
                            "ForegroundNormal=240,240,250\n"
                            "[Colors:Selection]\n"
                            "BackgroundNormal=200,60,60\n"
                            "ForegroundNormal=255,255,255\n");
  start(commands({u"Build"_s}));
  settledPicture();
  EXPECT_EQ(background(), QColor(40, 44, 60));
}

}  // namespace
}  // namespace lanternix
