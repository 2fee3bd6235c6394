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

TEST_F(AppearanceTest, OlderPortals_AreUnderstoodToo) {
  for (const auto knows : {PortalService::Knows::readOneAndRead, PortalService::Knows::readOnly}) {
    PortalService portal(busAddress(), saying(u"color-scheme"_s, dark), knows);
    start(commands({u"Build"_s}));
    EXPECT_TRUE(becomesDark()) << static_cast<int>(knows);
    portal.change(look, u"color-scheme"_s, light);
    EXPECT_TRUE(becomesLight()) << static_cast<int>(knows);
    program().terminate();
  }
}

TEST_F(AppearanceTest, HighContrast_IsTakenOnAndOff) {
  PortalService portal(busAddress(), saying(u"contrast"_s, 1U));
  start(commands({u"Build"_s}));
  settledPicture();
  EXPECT_EQ(background(), QColor(Qt::white));
  portal.change(look, u"color-scheme"_s, dark);
  EXPECT_TRUE(waitUntil([this] { return background() == QColor(Qt::black); }));
  portal.change(look, u"contrast"_s, 0U);
  EXPECT_TRUE(becomesDark());
}

TEST_F(AppearanceTest, ReducedMotion_FoldsAGroupInOneStep) {
  const PortalService portal(busAddress(), saying(u"reduced-motion"_s, 1U));
  start(commands({u"Build"_s, u"Deploy"_s}));
  const QRect row = selectNextRow();
  const QRect list = settledPicture().rect().adjusted(0, 90, 0, -40);
  const QPoint header = onPanel({row.center().x(), row.top() - 12});
  input().moveTo(header);
  const QImage before = settledPicture().copy(list);
  input().click(header);
  // The first change that is seen is the last one.
  QImage first;
  require(u"the group to fold"_s, [&] {
    first = picture().copy(list);
    return first != before;
  });
  EXPECT_EQ(settledPicture().copy(list), first);
}

TEST_F(AppearanceTest, WithoutAnyIconTheme_TheProgramsOwnDrawingsAreShown) {
  session().home().set(u"XDG_DATA_DIRS"_s, session().home().path(u"nowhere"_s));
  SampleGroups groups;
  groups.group(u"Places"_s, {.iconName = u"star.fill"_s, .colorName = u"purple"_s});
  groups.directory(u"Home"_s, session().home().home());
  start(groups);
  const QRect row = selectNextRow();
  const QImage icon = settledPicture().copy(row.left() + 12, row.top() + 8, 32, 32);
  int drawn = 0;
  for (int y = 0; y < icon.height(); ++y) {
    for (int x = 0; x < icon.width(); ++x) {
      drawn += icon.pixelColor(x, y) == QColor(0xAF52DE) ? 1 : 0;
    }
  }
  EXPECT_GT(drawn, 50) << "a folder in its group's colour";
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
