#include "support/StoreFixture.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using testing::ElementsAre;
using testing::IsEmpty;

namespace lanternix {

namespace {

class AppStateNavigation : public testing::Test, public StoreFixture {
 protected:
  const PathGroup group = StoreFixture::group(u"Group"_s, 0);
  const PathGroup folded = foldedGroup(u"Folded"_s, 1);
  const PathItem a = item(u"A"_s, group, 0, u"run a"_s);
  const PathItem b = item(u"B"_s, group, 1, u"run b"_s);
  const PathItem c = item(u"C"_s, group, 2, u"run c"_s);
  const PathItem hidden = item(u"Hidden"_s, folded, 0, u"run hidden"_s);

  std::unique_ptr<AppState> makeABC() { return makeState({group, folded}, {a, b, c, hidden}); }
  static QStringList walk(const AppState &state) { return names(state.navigationItems()); }
};

}  // namespace

TEST_F(AppStateNavigation, NoItems_KeysDoNothing) {
  const auto state = makeState();
  int hides = 0;
  state->onHide = [&] { ++hides; };
  state->navigateDown();
  state->navigateUp();
  state->openSelectedOrFirstItem();
  EXPECT_EQ(state->selectedItemId(), std::nullopt);
  EXPECT_EQ(hides, 0);
  EXPECT_THAT(processLauncher.launches, IsEmpty());
}

TEST_F(AppStateNavigation, Down_NothingSelected_SelectsTheFirst) {
  const auto state = makeABC();
  state->navigateDown();
  EXPECT_EQ(state->selectedItemId(), a.id);
}

TEST_F(AppStateNavigation, Up_NothingSelected_SelectsTheLast) {
  const auto state = makeABC();
  state->navigateUp();
  EXPECT_EQ(state->selectedItemId(), c.id);
}

TEST_F(AppStateNavigation, DownAndUp_GoToTheNeighbours) {
  const auto state = makeABC();
  state->setSelectedItemId(a.id);
  state->navigateDown();
  EXPECT_EQ(state->selectedItemId(), b.id);
  state->navigateUp();
  EXPECT_EQ(state->selectedItemId(), a.id);
}

TEST_F(AppStateNavigation, DownAndUp_AtTheEnds_Wrap) {
  const auto state = makeABC();
  state->setSelectedItemId(c.id);
  state->navigateDown();
  EXPECT_EQ(state->selectedItemId(), a.id);
  state->navigateUp();
  EXPECT_EQ(state->selectedItemId(), c.id);
}

TEST_F(AppStateNavigation, DownAndUp_DoNotSave) {
  const auto state = makeABC();
  EXPECT_FALSE(saves([&] {
    state->navigateDown();
    state->navigateUp();
  }));
}

TEST_F(AppStateNavigation, SelectionFilteredOut_KeysStartAnew) {
  const auto state = makeState({group}, {a, b, item(u"B2"_s, group, 2)});
  state->setSearchQuery(u"b"_s);
  state->setSelectedItemId(a.id);
  state->navigateDown();
  EXPECT_EQ(state->selectedItemId(), b.id);
  state->setSelectedItemId(a.id);
  state->navigateUp();
  EXPECT_EQ(state->itemWithId(*state->selectedItemId())->name, u"B2"_s);
}

TEST_F(AppStateNavigation, SelectionThatNoLongerExists_KeysStartAnew) {
  const auto state = makeABC();
  state->setSelectedItemId(b.id);
  state->deleteItem(b.id);
  state->navigateDown();
  EXPECT_EQ(state->selectedItemId(), a.id);
}

TEST_F(AppStateNavigation, NoQuery_WalksExpandedGroupsInOrder) {
  const PathGroup early = StoreFixture::group(u"Early"_s, -1);
  const auto state = makeState({group, folded, early}, {a, b, hidden, item(u"First"_s, early)});
  EXPECT_THAT(walk(*state), ElementsAre(u"First"_s, u"A"_s, u"B"_s));
}

TEST_F(AppStateNavigation, NoQuery_RecentItemsComeFirstAndOnce) {
  const auto state = makeState({group, folded}, {a, opened(b, 10), c, opened(hidden, 20)});
  EXPECT_THAT(walk(*state), ElementsAre(u"Hidden"_s, u"B"_s, u"A"_s, u"C"_s));
}

TEST_F(AppStateNavigation, NoQuery_RecentItemsComeFirstThoughNotShown) {
  const auto state = makeState({group}, {a, opened(b, 10)});
  state->setShowRecentItems(false);
  EXPECT_THAT(walk(*state), ElementsAre(u"B"_s, u"A"_s));
}

TEST_F(AppStateNavigation, NoQuery_ItemOfAMissingGroup_IsReachedOnlyAsRecent) {
  const PathGroup missing = StoreFixture::group(u"Missing"_s);
  const PathItem orphan = item(u"Orphan"_s, missing);
  EXPECT_THAT(walk(*makeState({group}, {a, orphan})), ElementsAre(u"A"_s));
  EXPECT_THAT(walk(*makeState({group}, {a, opened(orphan, 1)})), ElementsAre(u"Orphan"_s, u"A"_s));
}

TEST_F(AppStateNavigation, Query_WalksTheMatchesWithoutRecentItems) {
  const auto state = makeState({group, folded}, {a, b, opened(c, 10), hidden});
  state->setSearchQuery(u"run"_s);
  EXPECT_THAT(walk(*state), ElementsAre(u"A"_s, u"B"_s, u"C"_s, u"Hidden"_s));
}

TEST_F(AppStateNavigation, Query_FoldedAgain_GroupIsWalkedAllTheSame) {
  const auto state = makeABC();
  state->setSearchQuery(u"hidden"_s);
  state->toggleGroup(folded.id);
  EXPECT_THAT(walk(*state), ElementsAre(u"Hidden"_s));
}

TEST_F(AppStateNavigation, FoldedGroup_IsSkippedAtOnce) {
  const auto state = makeABC();
  EXPECT_THAT(walk(*state), ElementsAre(u"A"_s, u"B"_s, u"C"_s));
  state->toggleGroup(folded.id);
  EXPECT_THAT(walk(*state), ElementsAre(u"A"_s, u"B"_s, u"C"_s, u"Hidden"_s));
  state->toggleGroup(group.id);
  EXPECT_THAT(walk(*state), ElementsAre(u"Hidden"_s));
}

TEST_F(AppStateNavigation, RepeatedGroupId_ItemsAreReachedOnce) {
  PathGroup twin = group;
  twin.name = u"Twin"_s;
  const auto state = makeState({group, twin}, {a, b});
  EXPECT_THAT(walk(*state), ElementsAre(u"A"_s, u"B"_s));
  state->setSearchQuery(u"run"_s);
  EXPECT_THAT(walk(*state), ElementsAre(u"A"_s, u"B"_s));
}

TEST_F(AppStateNavigation, RepeatedGroupId_OneFolded_ItemsAreReachedThroughTheOther) {
  PathGroup twin = group;
  twin.isExpanded = false;
  twin.order = -1;
  EXPECT_THAT(walk(*makeState({group, twin}, {a, b})), ElementsAre(u"A"_s, u"B"_s));
}

TEST_F(AppStateNavigation, RepeatedItemId_FirstOccurrenceInTheWalkCounts) {
  PathItem twin = item(u"Twin"_s, group, -1);
  twin.id = b.id;
  const auto state = makeState({group}, {a, b, twin});
  EXPECT_THAT(walk(*state), ElementsAre(u"Twin"_s, u"A"_s));
  state->setSelectedItemId(a.id);
  state->navigateDown();
  EXPECT_EQ(state->selectedItemId(), b.id);
  state->navigateDown();
  EXPECT_EQ(state->selectedItemId(), a.id);
}

TEST_F(AppStateNavigation, Return_OpensTheSelectedItem) {
  const auto state = makeABC();
  state->setSelectedItemId(b.id);
  state->openSelectedOrFirstItem();
  EXPECT_THAT(processLauncher.launches, ElementsAre(u"/bin/sh -c run b"_s));
}

TEST_F(AppStateNavigation, Return_SelectedItemInAFoldedGroup_OpensIt) {
  const auto state = makeABC();
  state->setSelectedItemId(hidden.id);
  state->openSelectedOrFirstItem();
  EXPECT_THAT(processLauncher.launches, ElementsAre(u"/bin/sh -c run hidden"_s));
}

TEST_F(AppStateNavigation, Return_NothingSelected_OpensTheFirstRecentItem) {
  const auto state = makeState({group, folded}, {a, opened(c, 5), opened(hidden, 3)});
  state->openSelectedOrFirstItem();
  EXPECT_THAT(processLauncher.launches, ElementsAre(u"/bin/sh -c run c"_s));
}

TEST_F(AppStateNavigation, Return_NothingSelectedNorRecent_OpensTheFirstOfTheFirstExpandedGroup) {
  const auto state = makeState({foldedGroup(u"Early"_s, -1), group}, {c, b});
  state->openSelectedOrFirstItem();
  EXPECT_THAT(processLauncher.launches, ElementsAre(u"/bin/sh -c run b"_s));
}

TEST_F(AppStateNavigation, Return_SelectionThatNoLongerExists_OpensTheFirst) {
  const auto state = makeABC();
  state->setSelectedItemId(QUuid::createUuid());
  state->openSelectedOrFirstItem();
  EXPECT_THAT(processLauncher.launches, ElementsAre(u"/bin/sh -c run a"_s));
}

TEST_F(AppStateNavigation, Return_AfterTyping_OpensTheFirstMatch) {
  const auto state = makeABC();
  state->setSearchQuery(u"group: c"_s);
  state->openSelectedOrFirstItem();
  EXPECT_THAT(processLauncher.launches, ElementsAre(u"/bin/sh -c run c"_s));
  EXPECT_EQ(state->searchQuery(), u""_s);
}

}  // namespace lanternix
