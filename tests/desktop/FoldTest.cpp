#include "desktop/DesktopTest.h"

#include <QtCore/QJsonObject>

#include <X11/keysym.h>

namespace lanternix {
namespace {

using namespace Qt::StringLiterals;

// Between the search row, whose caret blinks, and the footer.
constexpr QRect listArea{0, 90, 700, 370};

class FoldTest : public DesktopTest {
 protected:
  /// Shows two groups, three rows in the first and one in the second.
  void startWithGroups() {
    SampleGroups groups = commands({u"one"_s, u"two"_s, u"three"_s});
    groups.group(u"Others"_s).command(u"other"_s, marking(u"other"_s));
    start(groups);
    m_firstRow = selectNextRow();
    m_unfolded = contentBottom();
    m_folded = m_unfolded - 3 * m_firstRow.height();
  }

  void clickFirstHeader() {
    constexpr int intoTheHeader = 12;
    input().click(onPanel({m_firstRow.center().x(), m_firstRow.top() - intoTheHeader}));
  }

  /// The lowest line of the list on which anything is drawn.
  int contentBottom() {
    const QImage list = picture().copy(listArea);
    const QRgb ground = list.pixel(2, list.height() - 1);
    for (int y = list.height() - 1; y >= 0; --y) {
      for (int x = 0; x < list.width(); ++x) {
        if (list.pixel(x, y) != ground) {
          return y;
        }
      }
    }
    return -1;
  }
  bool becomesFolded() {
    return waitUntil([this] { return contentBottom() == m_folded; });
  }
  bool becomesUnfolded() {
    return waitUntil([this] { return contentBottom() == m_unfolded; });
  }

  /// Folds and unfolds the first group until it is seen halfway, and returns whether it was on its
  /// way to being folded: a machine under load may miss all pictures of one movement.
  bool clickUntilHalfway() {
    bool folds = false;
    require(u"a group that is half folded"_s, [&] {
      const int start = contentBottom();
      folds = start == m_unfolded;
      const int end = folds ? m_folded : m_unfolded;
      clickFirstHeader();
      int now = start;
      waitUntil([&] {
        now = contentBottom();
        return now != start;
      });
      const bool isHalfway = now != end;
      if (!isHalfway) {
        waitUntil([&] { return contentBottom() == end; });
      }
      return isHalfway;
    });
    return folds;
  }

  bool isSavedAsExpanded(bool expanded) {
    return waitUntil([&] {
      const QJsonObject group = session().home().data()["groups"_L1].toArray().first().toObject();
      return group["isExpanded"_L1].toBool(!expanded) == expanded;
    });
  }

 private:
  QRect m_firstRow;
  int m_unfolded = 0;
  int m_folded = 0;
};

TEST_F(FoldTest, ClickOnAHeader_FoldsTheGroupAndSavesThat) {
  startWithGroups();
  clickFirstHeader();
  EXPECT_TRUE(becomesFolded());
  EXPECT_TRUE(isSavedAsExpanded(false));
}

TEST_F(FoldTest, SecondClick_UnfoldsTheGroupAndSavesThat) {
  startWithGroups();
  clickFirstHeader();
  ASSERT_TRUE(becomesFolded());
  ASSERT_TRUE(isSavedAsExpanded(false));
  clickFirstHeader();
  EXPECT_TRUE(becomesUnfolded());
  EXPECT_TRUE(isSavedAsExpanded(true));
}

TEST_F(FoldTest, FoldingGroup_IsSeenOnItsWay) {
  startWithGroups();
  EXPECT_NO_THROW(clickUntilHalfway());
}

TEST_F(FoldTest, ClickHalfway_TurnsTheGroupRound) {
  startWithGroups();
  const bool folds = clickUntilHalfway();
  clickFirstHeader();
  EXPECT_TRUE(folds ? becomesUnfolded() : becomesFolded());
  EXPECT_TRUE(isSavedAsExpanded(folds));
}

TEST_F(FoldTest, ManyQuickClicks_EndWhereTheLastOneLeads) {
  startWithGroups();
  for (int i = 0; i < 7; ++i) {
    clickFirstHeader();
  }
  EXPECT_TRUE(becomesFolded());
  EXPECT_TRUE(isSavedAsExpanded(false));
}

TEST_F(FoldTest, KeysWhileAGroupFolds_ReachTheSearch) {
  startWithGroups();
  clickUntilHalfway();
  input().type(u"other"_s);
  input().tap(XK_Return);
  EXPECT_TRUE(becomesMarked(u"other"_s));
}

TEST_F(FoldTest, EscapeWhileAGroupFolds_HidesAndTheNextShowIsAtRest) {
  startWithGroups();
  const bool folds = clickUntilHalfway();
  input().tap(XK_Escape);
  ASSERT_TRUE(becomesHidden());
  showByShortcut();
  settledPicture();
  EXPECT_TRUE(folds ? becomesFolded() : becomesUnfolded());
}

TEST_F(FoldTest, FoldedGroup_IsFoldedAfterARestart) {
  startWithGroups();
  clickFirstHeader();
  ASSERT_TRUE(becomesFolded());
  ASSERT_TRUE(isSavedAsExpanded(false));
  program().terminate();
  start();
  EXPECT_TRUE(becomesFolded());
}

TEST_F(FoldTest, RowsOfAFoldedGroup_AreSkippedByTheArrows) {
  startWithGroups();
  clickFirstHeader();
  ASSERT_TRUE(becomesFolded());
  input().tap(XK_Down);
  input().tap(XK_Return);
  EXPECT_TRUE(becomesMarked(u"other"_s));
}

TEST_F(FoldTest, GroupOfAThousandItems_UnfoldsAndFolds) {
  SampleGroups groups;
  groups.group(u"Many"_s);
  for (int i = 0; i < 1000; ++i) {
    groups.command(u"many%1"_s.arg(i), marking(u"many%1"_s.arg(i)));
  }
  groups.group(u"Others"_s).command(u"other"_s, marking(u"other"_s));
  start(groups);
  const QRect firstRow = selectNextRow();
  const QPoint header(firstRow.center().x(), firstRow.top() - 12);
  const int whole = contentBottom();
  input().click(onPanel(header));
  // One row and two headers remain.
  const int few = firstRow.bottom() - listArea.top() + 2 * firstRow.height();
  ASSERT_TRUE(waitUntil([&] { return contentBottom() < few; }));
  input().click(onPanel(header));
  ASSERT_TRUE(waitUntil([&] { return contentBottom() == whole; }));
  input().tap(XK_Down);
  input().tap(XK_Return);
  EXPECT_TRUE(becomesMarked(u"many1"_s));
}

}  // namespace
}  // namespace lanternix
