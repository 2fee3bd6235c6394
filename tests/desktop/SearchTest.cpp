#include "desktop/DesktopTest.h"

#include <X11/keysym.h>

namespace lanternix {
namespace {

using namespace Qt::StringLiterals;

class SearchTest : public DesktopTest {
 protected:
  /// Two groups with a report each, so that only the scope tells them apart.
  SampleGroups homeAndWork() {
    return SampleGroups()
        .group(u"Home"_s)
        .command(u"Home letter"_s, marking(u"Home letter"_s))
        .command(u"Report"_s, marking(u"home report"_s))
        .group(u"Work Projects"_s)
        .command(u"Work letter"_s, marking(u"Work letter"_s))
        .command(u"Report"_s, marking(u"work report"_s));
  }
};

TEST_F(SearchTest, LettersFromTheMiddleOfAName_FindIt) {
  start(commands({u"Build"_s, u"Deploy"_s}));
  input().type(u"PLO"_s);
  input().tap(XK_Return);
  EXPECT_TRUE(becomesMarked(u"Deploy"_s));
}

TEST_F(SearchTest, LettersOfTheCommandLine_FindItsItem) {
  start(SampleGroups()
            .group(u"Commands"_s)
            .command(u"first"_s, marking(u"alpha"_s))
            .command(u"second"_s, marking(u"omega"_s)));
  input().type(u"omega"_s);
  input().tap(XK_Return);
  EXPECT_TRUE(becomesMarked(u"omega"_s));
}

TEST_F(SearchTest, ScopeAndTerm_FindWithinTheGroup) {
  start(homeAndWork());
  input().type(u"work: rep"_s);
  input().tap(XK_Return);
  EXPECT_TRUE(becomesMarked(u"work report"_s));
  EXPECT_FALSE(isMarked(u"home report"_s));
}

TEST_F(SearchTest, ScopeAlone_ListsTheWholeGroup) {
  start(homeAndWork());
  input().type(u"work:"_s);
  input().tap(XK_Return);
  EXPECT_TRUE(becomesMarked(u"Work letter"_s));
}

TEST_F(SearchTest, DownAfterTyping_SelectsTheSecondMatch) {
  start(homeAndWork());
  input().type(u"rep"_s);
  input().tap(XK_Down);
  input().tap(XK_Return);
  EXPECT_TRUE(becomesMarked(u"work report"_s));
}

TEST_F(SearchTest, FoldedGroup_IsSearchedToo) {
  start(SampleGroups()
            .group(u"Open"_s)
            .command(u"Build"_s, marking(u"Build"_s))
            .group(u"Folded"_s, {.isExpanded = false})
            .command(u"Deploy"_s, marking(u"Deploy"_s)));
  input().type(u"dep"_s);
  input().tap(XK_Return);
  EXPECT_TRUE(becomesMarked(u"Deploy"_s));
}

TEST_F(SearchTest, FoldedGroup_IsPassedOverByTheArrows) {
  start(SampleGroups()
            .group(u"Folded"_s, {.isExpanded = false})
            .command(u"Build"_s, marking(u"Build"_s))
            .group(u"Open"_s)
            .command(u"Deploy"_s, marking(u"Deploy"_s)));
  input().tap(XK_Down);
  input().tap(XK_Return);
  EXPECT_TRUE(becomesMarked(u"Deploy"_s));
}

TEST_F(SearchTest, ItemOpenedLast_ComesFirstWithoutAQuery) {
  start(SampleGroups()
            .group(u"Commands"_s)
            .command(u"Never"_s, marking(u"Never"_s))
            .command(u"Long ago"_s, marking(u"Long ago"_s))
            .opened(1000)
            .command(u"Lately"_s, marking(u"Lately"_s))
            .opened(2000));
  input().tap(XK_Return);
  EXPECT_TRUE(becomesMarked(u"Lately"_s));
}

TEST_F(SearchTest, ClearButton_EmptiesTheFieldAndKeepsTheKeyboardThere) {
  start(commands({u"Build"_s, u"Deploy"_s}));
  const QImage before = settledPicture();
  input().type(u"zz"_s);
  // The button appears at the right end of the search row.
  const QRect corner(600, 44, 90, 40);
  const QRect button = changedArea(before, corner);
  input().click(onPanel(button.center()));
  // The window manager looks at a press first; keys sent at once would overtake it.
  ASSERT_TRUE(waitUntil([&] { return picture().copy(corner) == before.copy(corner); }));
  input().type(u"Deploy"_s);
  input().tap(XK_Return);
  EXPECT_TRUE(becomesMarked(u"Deploy"_s));
}

TEST_F(SearchTest, ClearButton_GoesAwayWithTheText) {
  start(commands({u"Build"_s, u"Deploy"_s}));
  const QRect corner(600, 44, 90, 40);
  const QImage before = settledPicture();
  input().type(u"zz"_s);
  const QRect button = changedArea(before, corner);
  input().click(onPanel(button.center()));
  EXPECT_TRUE(waitUntil([&] { return picture().copy(corner) == before.copy(corner); }));
}

TEST_F(SearchTest, ClickOnARow_OpensIt) {
  start(commands({u"Build"_s, u"Deploy"_s, u"Report"_s}));
  const QRect firstRow = selectNextRow();
  const QPoint secondRow = firstRow.center() + QPoint(0, firstRow.height());
  input().click(onPanel(secondRow));
  EXPECT_TRUE(becomesMarked(u"Deploy"_s));
  EXPECT_TRUE(becomesHidden());
  EXPECT_TRUE(session().home().item(u"Deploy"_s)["lastAccessed"_L1].isDouble());
}

TEST_F(SearchTest, ClickOnAHeader_FoldsItsGroup) {
  start(homeAndWork());
  const QRect firstRow = selectNextRow();
  const QImage before = settledPicture();
  // The header lies right above its first row.
  const QPoint header(firstRow.center().x(), firstRow.top() - 16);
  input().click(onPanel(header));
  changedArea(before, before.rect().adjusted(0, firstRow.top(), 0, 0));
  // Nothing of the folded group is left to walk through, so the arrow goes to the next one.
  input().tap(XK_Down);
  input().tap(XK_Return);
  EXPECT_TRUE(becomesMarked(u"Work letter"_s));
}

TEST_F(SearchTest, SecondClickOnAHeader_UnfoldsItsGroup) {
  start(homeAndWork());
  const QRect firstRow = selectNextRow();
  const QPoint header(firstRow.center().x(), firstRow.top() - 16);
  const QRect list = picture().rect().adjusted(0, firstRow.top(), 0, 0);
  const QImage unfolded = settledPicture();
  input().click(onPanel(header));
  changedArea(unfolded, list);
  const QImage folded = settledPicture();
  input().click(onPanel(header));
  changedArea(folded, list);
  input().tap(XK_Down);
  input().tap(XK_Return);
  // The arrow went on from the first row of the group, which is still selected, to its second.
  EXPECT_TRUE(becomesMarked(u"home report"_s));
}

}  // namespace
}  // namespace lanternix
