#include "desktop/DesktopTest.h"

#include <X11/keysym.h>

namespace lanternix {
namespace {

using namespace Qt::StringLiterals;

class MainJobTest : public DesktopTest {};

TEST_F(MainJobTest, ShortcutLettersReturn_OpensTheThing) {
  start(commands({u"Build"_s, u"Deploy"_s, u"Report"_s}));
  input().tap(XK_Escape);
  ASSERT_TRUE(becomesHidden());
  const auto other = session().openOtherWindow();
  other->takeFocus();

  showByShortcut();
  input().type(u"dep"_s);
  input().tap(XK_Return);

  EXPECT_TRUE(becomesMarked(u"Deploy"_s));
  EXPECT_TRUE(becomesHidden());
  EXPECT_TRUE(session().home().item(u"Deploy"_s)["lastAccessed"_L1].isDouble());
  EXPECT_TRUE(waitUntil([&] { return other->hasFocus(); }));
  EXPECT_FALSE(isMarked(u"Build"_s));
  EXPECT_FALSE(isMarked(u"Report"_s));
  EXPECT_TRUE(program().isRunning());
}

TEST_F(MainJobTest, Start_ShowsThePanelByItself) {
  start(commands({u"Build"_s}));
  EXPECT_TRUE(isShown());
  EXPECT_TRUE(panelHasFocus());
}

TEST_F(MainJobTest, FirstStart_ShowsThePanelAndWritesNoData) {
  start();
  EXPECT_TRUE(isShown());
  input().tap(XK_Escape);
  ASSERT_TRUE(becomesHidden());
  EXPECT_FALSE(ProgramEnvironment::read(session().home().dataFile()).has_value());
}

TEST_F(MainJobTest, SecondJob_IsAsGoodAsTheFirst) {
  startHidden(commands({u"Build"_s, u"Deploy"_s}));
  for (const QString &name : {u"Deploy"_s, u"Build"_s}) {
    showByShortcut();
    input().type(name);
    input().tap(XK_Return);
    EXPECT_TRUE(becomesMarked(name));
    EXPECT_TRUE(becomesHidden());
  }
}

}  // namespace
}  // namespace lanternix
