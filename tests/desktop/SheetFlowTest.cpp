#include "desktop/SettingsFlowTest.h"

namespace lanternix {
namespace {

using namespace Qt::StringLiterals;

/// What happens elsewhere in the program while a sheet or a question is open over the settings.
class SheetFlowTest : public SettingsFlowTest {
 protected:
  void open() {
    SampleGroups groups;
    groups.group(u"Work"_s).command(u"Report"_s, marking(u"Report"_s));
    groups.command(u"Notes"_s, marking(u"Notes"_s));
    openSettings(groups);
    select(u"Work"_s);
  }
  /// Opens the settings once more, from the panel over another program.
  void openAgain() {
    const auto other = session().openOtherWindow({0, 0, 900, 700});
    showByShortcut();
    pressSettingsKeys();
    require(u"the panel to hide"_s, [this] { return !isShown(); });
  }
};

TEST_F(SheetFlowTest, ASecondOpeningOverAnEditor_GivesTheEditorTheKeyboard) {
  open();
  click(button(u"Add Group"_s));
  const auto editor = dialog(u"New Group"_s);
  input().type(u"Ho"_s);
  openAgain();
  require(u"the editor to have the keyboard"_s, [&] { return isActive(editor); });
  input().type(u"me"_s);
  input().tap(XK_Return);
  requireClosed(editor);
  EXPECT_TRUE(becomesStored({u"Work"_s, u"Home"_s}));
}

TEST_F(SheetFlowTest, ASecondOpeningOverAQuestion_GivesTheQuestionTheKeyboard) {
  open();
  select(u"Notes"_s);
  input().tap(XK_Delete);
  const auto question = dialog(u"Delete \"Notes\"?"_s);
  openAgain();
  require(u"the question to have the keyboard"_s, [&] { return isActive(question); });
  input().tap(XK_Escape);
  requireClosed(question);
  EXPECT_EQ(storedItems(u"Work"_s), (QStringList{u"Report"_s, u"Notes"_s}));
}

TEST_F(SheetFlowTest, AnItemDeletedInThePanelUnderItsEditor_StaysDeleted) {
  open();
  select(u"Notes"_s);
  input().tap(XK_F2);
  const auto editor = dialog(u"Edit Item"_s);
  input().tap(XK_a, {XK_Control_L});
  input().type(u"Minutes"_s);
  showByShortcut();
  input().type(u"Notes"_s);
  input().tap(XK_F10, {XK_Shift_L});
  require(u"the item's menu"_s,
          [this] { return session().windows().menus(u"lanternix"_s).size() == 1; });
  input().tap(XK_Up);  // the last entry
  input().tap(XK_Return);
  ASSERT_TRUE(becomesStored(u"Work"_s, {u"Report"_s}));
  input().tap(XK_Escape);
  ASSERT_TRUE(becomesHidden());
  require(u"the editor to have the keyboard again"_s, [&] { return isActive(editor); });
  input().tap(XK_Return);
  requireClosed(editor);
  EXPECT_EQ(storedItems(u"Work"_s), QStringList(u"Report"_s));
  EXPECT_TRUE(program().isRunning());
}

}  // namespace
}  // namespace lanternix
