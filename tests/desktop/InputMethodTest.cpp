#include "desktop/DesktopTest.h"
#include "support/ProgramPing.h"
#include "support/SuspendedProcess.h"

#include <QtCore/QProcess>

#include <X11/keysym.h>

namespace lanternix {
namespace {

using namespace Qt::StringLiterals;

/// A keyboard with dead keys, which the input method of every Qt program composes with.
class InputMethodTest : public DesktopTest {
 protected:
  void SetUp() override {
    const QStringList arguments{u"-display"_s, session().displayName(), u"us"_s, u"intl"_s};
    ASSERT_EQ(QProcess::execute(u"setxkbmap"_s, arguments), 0) << "Debian package x11-xkb-utils";
    input().refreshKeyboard();
    SampleGroups groups;
    groups.group(u"Places"_s).command(u"cafe"_s, marking(u"plain"_s));
    groups.command(u"caf\u00e9"_s, marking(u"accent"_s));
    start(groups);
    // Qt lets the input method see a key before it has told it which field has the focus.
    program().settle();
  }
};

TEST_F(InputMethodTest, AComposedLetter_IsSearchedFor) {
  input().tap(XK_dead_acute);
  input().tap(XK_e);
  input().tap(XK_Return);
  EXPECT_TRUE(becomesMarked(u"accent"_s));
  EXPECT_FALSE(isMarked(u"plain"_s));
}

TEST_F(InputMethodTest, AComposedLetterTypedBeforeThePanelHasTheKeyboard_IsSearchedFor) {
  input().tap(XK_Escape);
  ASSERT_TRUE(becomesHidden());
  {
    session().windowManager()->settle();  // or it may have the server to itself just then
    const SuspendedProcess busyManager(session().windowManager()->processId());
    pressShortcut();
    ProgramPing(session().displayName(), program().panel()).waitForAnswer();
    input().tap(XK_dead_acute);
    input().tap(XK_e);
    input().tap(XK_Return);
  }
  EXPECT_TRUE(becomesMarked(u"accent"_s));
  EXPECT_FALSE(isMarked(u"plain"_s));
}

TEST_F(InputMethodTest, AHalfComposedLetter_IsNotPartOfTheNextSearch) {
  input().tap(XK_dead_acute);
  pressShortcut();
  ASSERT_TRUE(becomesHidden());
  showByShortcut();
  input().tap(XK_e);
  input().tap(XK_Return);
  EXPECT_TRUE(becomesMarked(u"plain"_s));
  EXPECT_FALSE(isMarked(u"accent"_s));
}

}  // namespace
}  // namespace lanternix
