#include "Models/PathItem.h"
#include "Platform/Linux/SettingsUserDefaults.h"
#include "Services/LauncherService.h"
#include "Services/Preferences.h"
#include "support/FakeProcessLauncher.h"
#include "support/FakeWorkspace.h"
#include "support/TemporaryHome.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace lanternix {
namespace {

using namespace Qt::StringLiterals;
using testing::ElementsAre;
using testing::IsEmpty;

PathItem itemOf(ItemType type, const QString &path) {
  PathItem item;
  item.type = type;
  item.path = path;
  return item;
}

class LauncherServiceTest : public testing::Test {
 protected:
  TemporaryHome home;
  SettingsUserDefaults userDefaults{home.preferencesFile()};
  FakeWorkspace workspace;
  FakeProcessLauncher processLauncher;
  LauncherService launcher{workspace, processLauncher, userDefaults};
};

TEST_F(LauncherServiceTest, Directory_WithoutChosenViewer_IsRevealed) {
  launcher.open(itemOf(ItemType::directory, u"/home/ada"_s));
  EXPECT_THAT(workspace.requests, ElementsAre(u"revealInFileViewer /home/ada"_s));
}

TEST_F(LauncherServiceTest, Directory_ThatDoesNotExist_StillGoesToTheViewer) {
  launcher.open(itemOf(ItemType::directory, u"/no/such/place"_s));
  EXPECT_THAT(workspace.requests, ElementsAre(u"revealInFileViewer /no/such/place"_s));
}

TEST_F(LauncherServiceTest, Directory_WithInstalledViewer_OpensInIt) {
  userDefaults.setString(u"org.example.Files"_s, Preferences::fileViewer);
  workspace.applications = {u"org.example.Files"_s};
  launcher.open(itemOf(ItemType::directory, u"/home/ada"_s));
  EXPECT_THAT(workspace.requests, ElementsAre(u"openDirectory /home/ada with org.example.Files"_s));
}

TEST_F(LauncherServiceTest, Directory_WithViewerThatIsNotInstalled_IsRevealed) {
  userDefaults.setString(u"org.example.Files"_s, Preferences::fileViewer);
  launcher.open(itemOf(ItemType::directory, u"/home/ada"_s));
  EXPECT_THAT(workspace.requests, ElementsAre(u"revealInFileViewer /home/ada"_s));
}

TEST_F(LauncherServiceTest, ViewerPreference_IsReadAnewAtEachOpening) {
  workspace.applications = {u"one"_s, u"two"_s};
  for (const QString &viewer : workspace.applications) {
    userDefaults.setString(viewer, Preferences::fileViewer);
    launcher.open(itemOf(ItemType::directory, u"/"_s));
  }
  EXPECT_THAT(workspace.requests,
              ElementsAre(u"openDirectory / with one"_s, u"openDirectory / with two"_s));
}

TEST_F(LauncherServiceTest, File_OpensExactlyAsStored) {
  launcher.open(itemOf(ItemType::file, u" ~/a b.txt "_s));
  EXPECT_THAT(workspace.requests, ElementsAre(u"openFile  ~/a b.txt "_s));
}

TEST_F(LauncherServiceTest, Link_IsHandedOverExactlyAsTyped) {
  launcher.open(itemOf(ItemType::link, u"https://example.org/a%20b?q=ä#x"_s));
  EXPECT_THAT(workspace.requests, ElementsAre(u"openUrl https://example.org/a%20b?q=ä#x"_s));
}

TEST_F(LauncherServiceTest, Link_WithoutScheme_IsPassedOnAsItIs) {
  launcher.open(itemOf(ItemType::link, u"example.org"_s));
  EXPECT_THAT(workspace.requests, ElementsAre(u"openUrl example.org"_s));
}

TEST_F(LauncherServiceTest, Link_ThatDoesNotParse_DoesNothing) {
  launcher.open(itemOf(ItemType::link, u""_s));
  launcher.open(itemOf(ItemType::link, u"http://[broken"_s));
  EXPECT_THAT(workspace.requests, IsEmpty());
}

TEST_F(LauncherServiceTest, Command_GoesToTheShellAsOneArgument) {
  launcher.open(itemOf(ItemType::command, u"cd /tmp; ls > 'a b'"_s));
  EXPECT_THAT(processLauncher.launches, ElementsAre(u"/bin/sh -c cd /tmp; ls > 'a b'"_s));
  EXPECT_THAT(workspace.requests, IsEmpty());
}

TEST_F(LauncherServiceTest, Command_ThatCannotBeStarted_IsSilent) {
  processLauncher.succeeds = false;
  launcher.open(itemOf(ItemType::command, u"true"_s));
  EXPECT_EQ(processLauncher.launches.size(), 1);
}

TEST_F(LauncherServiceTest, RevealInFinder_ShowsDirectoriesAndFiles) {
  launcher.revealInFinder(itemOf(ItemType::directory, u"/home"_s));
  launcher.revealInFinder(itemOf(ItemType::file, u"/etc/hosts"_s));
  EXPECT_THAT(workspace.requests,
              ElementsAre(u"revealInFileViewer /home"_s, u"revealInFileViewer /etc/hosts"_s));
}

TEST_F(LauncherServiceTest, RevealInFinder_DoesNotAskForTheChosenViewer) {
  userDefaults.setString(u"org.example.Files"_s, Preferences::fileViewer);
  workspace.applications = {u"org.example.Files"_s};
  launcher.revealInFinder(itemOf(ItemType::directory, u"/home"_s));
  EXPECT_THAT(workspace.requests, ElementsAre(u"revealInFileViewer /home"_s));
}

TEST_F(LauncherServiceTest, RevealInFinder_OfLinkOrCommand_DoesNothing) {
  launcher.revealInFinder(itemOf(ItemType::link, u"https://example.org"_s));
  launcher.revealInFinder(itemOf(ItemType::command, u"ls"_s));
  EXPECT_THAT(workspace.requests, IsEmpty());
  EXPECT_THAT(processLauncher.launches, IsEmpty());
}

}  // namespace
}  // namespace lanternix
