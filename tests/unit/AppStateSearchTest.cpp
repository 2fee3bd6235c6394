#include "support/StoreFixture.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using testing::IsEmpty;

namespace lanternix {

namespace {

class AppStateSearch : public testing::Test, public StoreFixture {
 protected:
  const PathGroup work = group(u"Work Projects"_s, 1);
  const PathGroup leisure = group(u"Home"_s, 0);
  const PathGroup empty = group(u"Empty"_s, 2);
  const PathItem report = item(u"Report"_s, work, 0, u"/papers/report.pdf"_s);
  const PathItem plan = item(u"Plan"_s, work, 1, u"https://plan.example"_s);
  const PathItem garden = item(u"Garden"_s, leisure, 0, u"/home/garden.PDF"_s);
  const PathItem reptiles = item(u"Reptiles"_s, leisure, 1, u"/home/zoo"_s);
  const std::unique_ptr<AppState> state =
      makeState({work, leisure, empty}, {report, garden, plan, reptiles});

  QStringList shownGroups() const { return names(state->filteredGroups()); }
  QStringList shownItems(const PathGroup &in) const { return names(state->itemsForGroup(in.id)); }

  struct Parsed {
    QString scope;
    QString term;
    friend bool operator==(const Parsed &, const Parsed &) = default;
  };
  Parsed parsed(const QString &query) {
    state->setSearchQuery(query);
    return {state->groupScopeFilter(), state->itemSearchTerm()};
  }
};

}  // namespace

// --- Reading the query --------------------------------------------------------------------------

TEST_F(AppStateSearch, Query_WithoutColon_IsTheTermUntrimmed) {
  EXPECT_EQ(parsed(u"rep"_s), (Parsed{u""_s, u"rep"_s}));
  EXPECT_EQ(parsed(u"  a "_s), (Parsed{u""_s, u"  a "_s}));
  EXPECT_EQ(parsed(u""_s), (Parsed{u""_s, u""_s}));
}

TEST_F(AppStateSearch, Query_WithColon_IsScopeAndTermTrimmed) {
  EXPECT_EQ(parsed(u"work: rep"_s), (Parsed{u"work"_s, u"rep"_s}));
  EXPECT_EQ(parsed(u" \twork \t:\t a b  "_s), (Parsed{u"work"_s, u"a b"_s}));
  EXPECT_EQ(parsed(u"work:"_s), (Parsed{u"work"_s, u""_s}));
}

TEST_F(AppStateSearch, Query_FurtherColons_BelongToTheTerm) {
  EXPECT_EQ(parsed(u"a:b:c"_s), (Parsed{u"a"_s, u"b:c"_s}));
  EXPECT_EQ(parsed(u"a::"_s), (Parsed{u"a"_s, u":"_s}));
}

TEST_F(AppStateSearch, Query_StartingWithAColon_ScopesToWhatFollows) {
  EXPECT_EQ(parsed(u": work"_s), (Parsed{u"work"_s, u"work"_s}));
  EXPECT_EQ(parsed(u":a:b"_s), (Parsed{u"a:b"_s, u"a:b"_s}));
  EXPECT_EQ(parsed(u":"_s), (Parsed{u""_s, u""_s}));
  EXPECT_EQ(parsed(u"::"_s), (Parsed{u":"_s, u":"_s}));
}

TEST_F(AppStateSearch, Query_BlanksBeforeTheColon_AreNoScope) {
  EXPECT_EQ(parsed(u"  :x"_s), (Parsed{u""_s, u"x"_s}));
}

// --- Groups and items shown ---------------------------------------------------------------------

TEST_F(AppStateSearch, NoQuery_ShowsAllGroupsInOrder) {
  EXPECT_EQ(shownGroups(), (QStringList{u"Home"_s, u"Work Projects"_s, u"Empty"_s}));
  EXPECT_EQ(shownItems(work), (QStringList{u"Report"_s, u"Plan"_s}));
  EXPECT_THAT(shownItems(empty), IsEmpty());
  EXPECT_EQ(state->scopedGroups(), std::nullopt);
}

TEST_F(AppStateSearch, EqualGroupOrders_KeepStorageOrder) {
  const auto tied = makeState({group(u"Z"_s, 1), group(u"Y"_s, 1), group(u"X"_s, 0)}, {});
  EXPECT_EQ(names(tied->filteredGroups()), (QStringList{u"X"_s, u"Z"_s, u"Y"_s}));
}

TEST_F(AppStateSearch, Term_IsFoundInNameOrPathInAnyCase) {
  state->setSearchQuery(u"pdf"_s);
  EXPECT_EQ(shownGroups(), (QStringList{u"Home"_s, u"Work Projects"_s}));
  EXPECT_EQ(shownItems(work), QStringList{u"Report"_s});
  EXPECT_EQ(shownItems(leisure), QStringList{u"Garden"_s});
  state->setSearchQuery(u"GARD"_s);
  EXPECT_EQ(shownGroups(), QStringList{u"Home"_s});
}

TEST_F(AppStateSearch, Term_IsFoundInPathsThatRowsDoNotShow) {
  state->setShowURLs(false);
  state->setSearchQuery(u"plan.example"_s);
  EXPECT_EQ(shownItems(work), QStringList{u"Plan"_s});
}

TEST_F(AppStateSearch, Term_InGroupNamesAlone_ShowsNothing) {
  state->setSearchQuery(u"projects"_s);
  EXPECT_THAT(shownGroups(), IsEmpty());
}

TEST_F(AppStateSearch, Term_OfBlanks_SearchesForThem) {
  state->setSearchQuery(u"   "_s);
  EXPECT_THAT(shownGroups(), IsEmpty());
  state->addItem(item(u"three   blanks"_s, leisure));
  EXPECT_EQ(shownItems(leisure), QStringList{u"three   blanks"_s});
}

TEST_F(AppStateSearch, Scope_Alone_ShowsWholeGroups) {
  state->setSearchQuery(u"WORK:"_s);
  EXPECT_EQ(shownGroups(), QStringList{u"Work Projects"_s});
  EXPECT_EQ(shownItems(work), (QStringList{u"Report"_s, u"Plan"_s}));
  EXPECT_THAT(shownItems(leisure), IsEmpty());
  ASSERT_TRUE(state->scopedGroups().has_value());
  EXPECT_EQ(names(*state->scopedGroups()), QStringList{u"Work Projects"_s});
}

TEST_F(AppStateSearch, Scope_Alone_ShowsEmptyGroups) {
  state->setSearchQuery(u"empty:"_s);
  EXPECT_EQ(shownGroups(), QStringList{u"Empty"_s});
}

TEST_F(AppStateSearch, Scope_WithTerm_SearchesInItsGroups) {
  state->setSearchQuery(u"work: rep"_s);
  EXPECT_EQ(shownGroups(), QStringList{u"Work Projects"_s});
  EXPECT_EQ(shownItems(work), QStringList{u"Report"_s});
  EXPECT_THAT(shownItems(leisure), IsEmpty());
}

TEST_F(AppStateSearch, Scope_WithTermThatIsNotThere_ShowsNothing) {
  state->setSearchQuery(u"work: garden"_s);
  EXPECT_THAT(shownGroups(), IsEmpty());
  EXPECT_TRUE(state->scopedGroups().has_value());
}

TEST_F(AppStateSearch, Scope_OfSeveralGroups_ListsThemInStorageOrder) {
  const auto other = makeState({group(u"my Y"_s, 1), group(u"my Z"_s, 0)}, {});
  other->setSearchQuery(u"my:"_s);
  EXPECT_EQ(names(other->filteredGroups()), (QStringList{u"my Y"_s, u"my Z"_s}));
  EXPECT_EQ(names(*other->scopedGroups()), (QStringList{u"my Y"_s, u"my Z"_s}));
}

TEST_F(AppStateSearch, Scope_ThatNoGroupHas_SearchesTheWholeQuery) {
  state->setSearchQuery(u"https:"_s);
  EXPECT_EQ(state->scopedGroups(), std::nullopt);
  EXPECT_EQ(shownGroups(), QStringList{u"Work Projects"_s});
  EXPECT_EQ(shownItems(work), QStringList{u"Plan"_s});
}

TEST_F(AppStateSearch, Scope_ThatNoGroupHas_LeavesTheTermToAllGroups) {
  state->setSearchQuery(u"nowhere: rep"_s);
  EXPECT_EQ(shownGroups(), (QStringList{u"Home"_s, u"Work Projects"_s}));
  EXPECT_EQ(shownItems(leisure), QStringList{u"Reptiles"_s});
}

TEST_F(AppStateSearch, Query_StartingWithAColon_ScopesAndSearchesTheSame) {
  state->addItem(item(u"Homework"_s, leisure));
  state->setSearchQuery(u": home"_s);
  EXPECT_EQ(shownGroups(), QStringList{u"Home"_s});
  EXPECT_EQ(shownItems(leisure), (QStringList{u"Garden"_s, u"Reptiles"_s, u"Homework"_s}));
}

TEST_F(AppStateSearch, Query_OfOneColon_SearchesForIt) {
  state->setSearchQuery(u":"_s);
  EXPECT_EQ(shownItems(work), QStringList{u"Plan"_s});
  EXPECT_THAT(shownItems(leisure), IsEmpty());
}

TEST_F(AppStateSearch, ItemsForGroup_MissingGroup_GivesItsItems) {
  const PathGroup missing = group(u"Missing"_s);
  state->addItem(item(u"Orphan"_s, missing));
  EXPECT_EQ(shownItems(missing), QStringList{u"Orphan"_s});
  state->setSearchQuery(u"orp"_s);
  EXPECT_EQ(shownItems(missing), QStringList{u"Orphan"_s});
  EXPECT_THAT(shownGroups(), IsEmpty());
  state->setSearchQuery(u"home:"_s);
  EXPECT_THAT(shownItems(missing), IsEmpty());
  EXPECT_THAT(state->itemsForGroup(QUuid::createUuid()), IsEmpty());
}

TEST_F(AppStateSearch, FilteredGroups_RepeatedId_AreEachShown) {
  PathGroup twin = group(u"Twin"_s, 0);
  twin.id = work.id;
  const auto twins = makeState({work, twin}, {report, plan});
  EXPECT_EQ(names(twins->filteredGroups()), (QStringList{u"Twin"_s, u"Work Projects"_s}));
  twins->setSearchQuery(u"twin: rep"_s);
  EXPECT_EQ(names(twins->filteredGroups()), QStringList{u"Twin"_s});
  EXPECT_EQ(names(twins->itemsForGroup(work.id)), QStringList{u"Report"_s});
}

// --- What a change of the data does to a search -------------------------------------------------

TEST_F(AppStateSearch, ChangesWhileSearching_AreFoundAtOnce) {
  state->setSearchQuery(u"zzz"_s);
  EXPECT_THAT(shownGroups(), IsEmpty());
  PathItem renamed = plan;
  renamed.name = u"Zzz"_s;
  state->updateItem(renamed);
  EXPECT_EQ(shownItems(work), QStringList{u"Zzz"_s});
  state->moveItem(plan.id, leisure.id);
  EXPECT_EQ(shownGroups(), QStringList{u"Home"_s});
  state->openItem(renamed);
  state->setSearchQuery(u"zzz"_s);
  state->deleteItem(plan.id);
  EXPECT_THAT(shownGroups(), IsEmpty());
}

TEST_F(AppStateSearch, RenamedGroup_IsFoundByItsNewNameAtOnce) {
  state->setSearchQuery(u"garage:"_s);
  EXPECT_EQ(state->scopedGroups(), std::nullopt);
  PathGroup renamed = leisure;
  renamed.name = u"Garage"_s;
  state->updateGroup(renamed);
  EXPECT_EQ(shownGroups(), QStringList{u"Garage"_s});
}

}  // namespace lanternix
