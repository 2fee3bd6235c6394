#include "desktop/DesktopTest.h"
#include "desktop/TrayHost.h"

#include <QtDBus/QDBusArgument>

#include <X11/keysym.h>

namespace lanternix {
namespace {

using namespace Qt::StringLiterals;
using testing::ElementsAre;

class TrayTest : public DesktopTest {
 protected:
  std::unique_ptr<TrayHost> makeTray(TrayHost::Shows shows = TrayHost::Shows::items) {
    return std::make_unique<TrayHost>(session().bus()->address(), shows);
  }

  /// Starts the program over two commands, one of which was opened before, and waits for its item.
  void startInTray() {
    tray = makeTray();
    startHidden(groups());
    ASSERT_TRUE(tray->hasItem());
  }

  SampleGroups groups() const {
    SampleGroups groups;
    groups.group(u"Commands"_s);
    groups.command(u"Build"_s, marking(u"Build"_s)).opened(1000);
    groups.command(u"Deploy"_s, marking(u"Deploy"_s));
    return groups;
  }

  /// Whether the menu drawn by the program itself appears, as a button of the mouse opens it.
  bool opensMenuBy(const QString &method) {
    tray->callAt(method, 1200, 10);
    return waitUntil([this] { return !session().windows().menus(u"lanternix"_s).isEmpty(); });
  }

  std::unique_ptr<TrayHost> tray;
};

TEST_F(TrayTest, Item_IsTitledAndHasAPicture) {
  startInTray();
  EXPECT_EQ(tray->property(u"Title"_s), u"Lanternix"_s);
  EXPECT_EQ(tray->property(u"Status"_s), u"Active"_s);
  const auto pictures = qvariant_cast<QDBusArgument>(tray->property(u"IconPixmap"_s));
  EXPECT_EQ(pictures.currentSignature(), u"a(iiay)"_s);
  pictures.beginArray();
  ASSERT_FALSE(pictures.atEnd());
  int width = 0;
  int height = 0;
  QByteArray pixels;
  pictures.beginStructure();
  pictures >> width >> height >> pixels;
  EXPECT_EQ(pixels.size(), 4 * width * height);
  EXPECT_NE(pixels.count('\0'), pixels.size()) << "nothing is drawn";
}

TEST_F(TrayTest, Menu_HasTheEntries) {
  startInTray();
  EXPECT_THAT(tray->menuTexts(),
              ElementsAre(u"Recent"_s, u"Build"_s, u"-"_s, u"Show Panel"_s, u"-"_s,
                          u"Settings..."_s, u"-"_s, u"Quit Lanternix"_s));
  const QList<TrayHost::Entry> menu = tray->menu();
  EXPECT_FALSE(menu[0].isEnabled());
  EXPECT_FALSE(menu[1].properties.value(u"icon-data"_s).toByteArray().isEmpty());
}

TEST_F(TrayTest, MenuWithoutOpenedItems_BeginsWithShowPanel) {
  tray = makeTray();
  startHidden(commands({u"Build"_s, u"Deploy"_s}));
  ASSERT_TRUE(tray->hasItem());
  EXPECT_THAT(tray->menuTexts(),
              ElementsAre(u"Show Panel"_s, u"-"_s, u"Settings..."_s, u"-"_s, u"Quit Lanternix"_s));
}

TEST_F(TrayTest, ChosenItem_Opens) {
  startInTray();
  tray->choose(u"Build"_s);
  EXPECT_TRUE(becomesMarked(u"Build"_s));
}

TEST_F(TrayTest, ItemOpenedInThePanel_ComesFirstInTheMenu) {
  startInTray();
  showByShortcut();
  input().type(u"dep"_s);
  input().tap(XK_Return);
  ASSERT_TRUE(becomesMarked(u"Deploy"_s));
  EXPECT_TRUE(waitUntil([this] {
    return tray->menuTexts().mid(0, 4) == QStringList{u"Recent"_s, u"Deploy"_s, u"Build"_s, u"-"_s};
  }));
}

TEST_F(TrayTest, EntryThatIsGone_OpensNothing) {
  startInTray();
  const TrayHost::Entry build = tray->menu().at(1);
  tray->choose(build);
  ASSERT_TRUE(becomesMarked(u"Build"_s));
  showByShortcut();
  input().type(u"dep"_s);
  input().tap(XK_Return);
  ASSERT_TRUE(becomesMarked(u"Deploy"_s));
  require(u"the menu to follow"_s, [this] { return tray->menuTexts().at(1) == u"Deploy"_s; });
  const QByteArray data = *ProgramEnvironment::read(session().home().dataFile());
  tray->choose(build);
  tray->menu();  // answered after the choice
  program().settle();
  EXPECT_EQ(ProgramEnvironment::read(session().home().dataFile()), data);
}

TEST_F(TrayTest, ShowPanel_ShowsItWithTheKeyboard) {
  startInTray();
  const auto other = session().openOtherWindow();
  tray->choose(u"Show Panel"_s);
  program().waitForPanel();
  input().type(u"dep"_s);
  input().tap(XK_Return);
  EXPECT_TRUE(becomesMarked(u"Deploy"_s));
}

TEST_F(TrayTest, Settings_OpensThemWithTheKeyboard) {
  startInTray();
  const auto other = session().openOtherWindow();
  tray->choose(u"Settings..."_s);
  EXPECT_TRUE(waitUntil([this] {
    const auto settings = session().windows().find(u"lanternix"_s, u"Lanternix Settings"_s);
    return settings && session().windows().isViewable(*settings) &&
           session().windows().hasFocus(*settings);
  }));
}

TEST_F(TrayTest, QuitLanternix_OverTheSettings_EndsTheProgramWithoutAQuestion) {
  startInTray();
  tray->choose(u"Settings..."_s);
  require(u"the settings"_s, [this] {
    const auto settings = session().windows().find(u"lanternix"_s, u"Lanternix Settings"_s);
    return settings && session().windows().isViewable(*settings);
  });
  tray->choose(u"Quit Lanternix"_s);
  EXPECT_TRUE(waitUntil([this] { return program().exitCode() == 0; }));
}

TEST_F(TrayTest, QuitLanternix_EndsTheProgramAtOnce) {
  startInTray();
  tray->choose(u"Quit Lanternix"_s);
  EXPECT_TRUE(waitUntil([this] { return program().exitCode() == 0; }));
}

TEST_F(TrayTest, QuitLanternix_OverTheShownPanel_EndsTheProgramToo) {
  tray = makeTray();
  start(groups());
  ASSERT_TRUE(tray->hasItem());
  tray->choose(u"Quit Lanternix"_s);
  EXPECT_TRUE(waitUntil([this] { return program().exitCode() == 0; }));
}

// A tray that does not draw the menu for a button of the mouse tells the program of the press.

TEST_F(TrayTest, LeftButton_OpensTheMenu) {
  startInTray();
  ASSERT_TRUE(opensMenuBy(u"Activate"_s));
  // The last entry but two, from below.
  input().tap(XK_Up);
  input().tap(XK_Up);
  input().tap(XK_Up);
  input().tap(XK_Return);
  program().waitForPanel();
  EXPECT_TRUE(isShown());
}

TEST_F(TrayTest, RightButton_OpensTheMenu) {
  startInTray();
  ASSERT_TRUE(opensMenuBy(u"ContextMenu"_s));
  input().tap(XK_Up);
  input().tap(XK_Return);
  EXPECT_TRUE(waitUntil([this] { return program().exitCode() == 0; }));
}

TEST_F(TrayTest, TrayThatComesLater_GetsTheItem) {
  startHidden(groups());
  tray = makeTray();
  ASSERT_TRUE(tray->hasItem());
  EXPECT_TRUE(tray->menuTexts().contains(u"Quit Lanternix"_s));
}

TEST_F(TrayTest, TrayWhoseHostComesLater_GetsTheItem) {
  tray = makeTray(TrayHost::Shows::nothing);
  startHidden(groups());
  tray->beginToShow();
  EXPECT_TRUE(tray->hasItem());
}

TEST_F(TrayTest, TrayThatIsStartedAnew_GetsTheItemAgain) {
  startInTray();
  for (int i = 0; i < 2; ++i) {
    tray.reset();
    tray = makeTray();
    ASSERT_TRUE(tray->hasItem()) << i;
  }
  EXPECT_EQ(tray->items().size(), 1);
  tray->choose(u"Show Panel"_s);
  program().waitForPanel();
  EXPECT_TRUE(isShown());
}

}  // namespace
}  // namespace lanternix
