#include "support/StoreFixture.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using testing::ElementsAre;

namespace lanternix {

namespace {

class AppStateOpening : public testing::Test, public StoreFixture {
 protected:
  const PathGroup group = StoreFixture::group(u"Group"_s);
  const PathItem command = item(u"Command"_s, group, 0, u"ls -l"_s);
  const PathItem other = item(u"Other"_s, group, 1, u"pwd"_s);
};

}  // namespace

TEST_F(AppStateOpening, OpenItem_LaunchesIt) {
  const auto state = makeState({group}, {command, other});
  state->openItem(other);
  EXPECT_THAT(processLauncher.launches, ElementsAre(u"/bin/sh -c pwd"_s));
}

TEST_F(AppStateOpening, OpenItem_RecordsTheAccess) {
  const auto state = makeState({group}, {command, other});
  state->openItem(other);
  EXPECT_EQ(state->items()[0].lastAccessed, std::nullopt);
  EXPECT_EQ(state->items()[1].lastAccessed, clock.now());
  clock.advance(60);
  state->openItem(other);
  EXPECT_EQ(state->items()[1].lastAccessed, clock.now());
}

TEST_F(AppStateOpening, OpenItem_SavesBeforeItLaunches) {
  const auto state = makeState({group}, {command});
  std::optional<DataDocument> found;
  processLauncher.onLaunch = [&] { found = savedData(); };
  state->openItem(command);
  ASSERT_TRUE(found.has_value());
  ASSERT_EQ(found->items.size(), 1);
  EXPECT_EQ(found->items[0].lastAccessed, clock.now());
}

TEST_F(AppStateOpening, OpenItem_HidesThePanelAfterTheLaunch) {
  const auto state = makeState({group}, {command});
  state->setPanelVisible(true);
  QStringList steps;
  processLauncher.onLaunch = [&] { steps.append(u"launch"_s); };
  state->onHide = [&] { steps.append(u"hide"_s); };
  state->openItem(command);
  EXPECT_THAT(steps, ElementsAre(u"launch"_s, u"hide"_s));
  EXPECT_FALSE(state->isPanelVisible());
}

TEST_F(AppStateOpening, OpenItem_LaunchesTheArgumentAsPassed) {
  const auto state = makeState({group}, {command});
  PathItem edited = command;
  edited.path = u"true"_s;
  state->openItem(edited);
  EXPECT_THAT(processLauncher.launches, ElementsAre(u"/bin/sh -c true"_s));
  EXPECT_EQ(state->items()[0].path, u"ls -l"_s);
}

TEST_F(AppStateOpening, OpenItem_NotInTheStore_LaunchesAndHidesWithoutSaving) {
  const auto state = makeState({group}, {command});
  int hidden = 0;
  state->onHide = [&] { ++hidden; };
  EXPECT_FALSE(saves([&] { state->openItem(other); }));
  EXPECT_THAT(processLauncher.launches, ElementsAre(u"/bin/sh -c pwd"_s));
  EXPECT_EQ(hidden, 1);
}

TEST_F(AppStateOpening, OpenItem_RepeatedId_RecordsTheFirst) {
  PathItem twin = other;
  twin.id = command.id;
  const auto state = makeState({group}, {command, twin});
  state->openItem(twin);
  EXPECT_EQ(state->items()[0].lastAccessed, clock.now());
  EXPECT_EQ(state->items()[1].lastAccessed, std::nullopt);
  EXPECT_THAT(processLauncher.launches, ElementsAre(u"/bin/sh -c pwd"_s));
}

TEST_F(AppStateOpening, OpenItem_FailingLaunch_HidesAllTheSame) {
  processLauncher.succeeds = false;
  const auto state = makeState({group}, {command});
  state->setPanelVisible(true);
  state->openItem(command);
  EXPECT_FALSE(state->isPanelVisible());
}

TEST_F(AppStateOpening, OpenItem_OtherTypes_GoToTheWorkspaceAfterTheSave) {
  PathItem link = item(u"Link"_s, group, 2, u"https://a.example"_s);
  link.type = ItemType::link;
  const auto state = makeState({group}, {link});
  std::optional<DataDocument> found;
  workspace.onRequest = [&] { found = savedData(); };
  state->openItem(state->items()[0]);  // a reference to what changes
  EXPECT_THAT(workspace.requests, ElementsAre(u"openUrl https://a.example"_s));
  ASSERT_TRUE(found.has_value());
  EXPECT_EQ(found->items[0].lastAccessed, clock.now());
}

TEST_F(AppStateOpening, HidePanel_ClearsSearchAndSelectionBeforeItCallsBack) {
  const auto state = makeState({group}, {command});
  state->setPanelVisible(true);
  state->setSearchQuery(u"com"_s);
  ASSERT_EQ(state->selectedItemId(), command.id);
  QString query = u"unseen"_s;
  std::optional<QUuid> selected = command.id;
  bool visible = true;
  state->onHide = [&] {
    query = state->searchQuery();
    selected = state->selectedItemId();
    visible = state->isPanelVisible();
  };
  state->hidePanel();
  EXPECT_EQ(query, u""_s);
  EXPECT_EQ(selected, std::nullopt);
  EXPECT_FALSE(visible);
}

TEST_F(AppStateOpening, HidePanel_DoesNotSave) {
  const auto state = makeState({group}, {command});
  EXPECT_FALSE(saves([&] { state->hidePanel(); }));
}

TEST_F(AppStateOpening, HidePanel_WithoutACallback_DoesNoHarm) {
  const auto state = makeState({group}, {command});
  state->setSelectedItemId(command.id);
  state->hidePanel();
  EXPECT_EQ(state->selectedItemId(), std::nullopt);
}

}  // namespace lanternix
