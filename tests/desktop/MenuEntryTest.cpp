#include "desktop/FileManagerService.h"
#include "desktop/MenuTest.h"
#include "support/Clipboard.h"

#include <QtCore/QJsonArray>
#include <QtCore/QUrl>

#include <X11/keysym.h>

namespace lanternix {
namespace {

using namespace Qt::StringLiterals;

class MenuEntryTest : public MenuTest {
 protected:
  QStringList itemNames() {
    QStringList names;
    const QJsonArray items = session().home().data()["items"_L1].toArray();
    for (const QJsonValue &item : items) {
      names.append(item["name"_L1].toString());
    }
    return names;
  }
  bool clipboardBecomes(const QString &text) {
    Clipboard clipboard(session().displayName());
    return waitUntil([&] { return clipboard.text() == text; });
  }
};

// ----------------------------------------------------------------------------------

TEST_F(MenuEntryTest, Duplicate_AddsACopyAtOnce) {
  startWithCommands();
  choose(0);
  EXPECT_TRUE(waitUntil([this] { return itemNames().size() == 4; }));
  EXPECT_TRUE(isShown());
}

TEST_F(MenuEntryTest, Delete_RemovesTheItemAtOnce) {
  startWithCommands();
  input().tap(XK_Down);
  choose(2);
  EXPECT_TRUE(waitUntil([this] { return itemNames() == QStringList({u"first"_s, u"third"_s}); }));
  EXPECT_TRUE(isShown());
}

TEST_F(MenuEntryTest, EntryUnderTheMouse_IsChosenByAClick) {
  startWithCommands();
  openMenuOf(1);
  constexpr QPoint lastEntry(30, 16);
  const QRect menu = menuGeometry();
  input().click(QPoint(menu.left() + lastEntry.x(), menu.bottom() - lastEntry.y()));
  EXPECT_TRUE(waitUntil([this] { return itemNames() == QStringList({u"first"_s, u"third"_s}); }));
  EXPECT_TRUE(menuCloses());
  EXPECT_TRUE(isShown());
}

TEST_F(MenuEntryTest, MenuOfAnUnselectedRow_ActsOnThatRow) {
  startWithCommands();
  openMenuOf(2);
  input().tap(XK_Up);  // to the last entry
  input().tap(XK_Return);
  EXPECT_TRUE(waitUntil([this] { return itemNames() == QStringList({u"first"_s, u"second"_s}); }));
}

TEST_F(MenuEntryTest, CopyCommand_LeavesTheCommandLineOnTheClipboard) {
  const QString line = u"echo 'äöü — 漢字 🏮' | wc -c"_s;
  startWith(SampleGroups().group(u"Things"_s).command(u"Count"_s, line));
  choose(1);
  EXPECT_TRUE(clipboardBecomes(line));
}

TEST_F(MenuEntryTest, CopyPath_LeavesAFoldersWholePathOnTheClipboard) {
  // Shown with a tilde, but pasted whole.
  const QString path = session().home().path(u"Pläne und Entwürfe"_s);
  startWith(SampleGroups().group(u"Things"_s).directory(u"Plans"_s, path));
  choose(2);
  EXPECT_TRUE(clipboardBecomes(path));
}

TEST_F(MenuEntryTest, CopyPath_LeavesALinkAsItIsWritten) {
  const QString url = u"https://example.org/a%20b?q=1&r=ä#top"_s;
  startWith(SampleGroups().group(u"Things"_s).link(u"Page"_s, url));
  choose(1);
  EXPECT_TRUE(clipboardBecomes(url));
}

TEST_F(MenuEntryTest, CopiedText_IsThereAfterThePanelIsHidden) {
  const QString url = u"https://example.org/"_s;
  startWith(SampleGroups().group(u"Things"_s).link(u"Page"_s, url));
  choose(1);
  input().tap(XK_Escape);
  ASSERT_TRUE(becomesHidden());
  EXPECT_TRUE(clipboardBecomes(url));
}

TEST_F(MenuEntryTest, RevealInFinder_ShowsTheFileInTheFileManager) {
  const QString document = session().home().path(u"ein Brief.txt"_s);
  ProgramEnvironment::write(document, "text\n");
  FileManagerService fileManager(session().bus()->address());
  startWith(SampleGroups().group(u"Things"_s).file(u"Letter"_s, document));
  choose(0);
  EXPECT_TRUE(waitUntil([&] { return !fileManager.shownItems().isEmpty(); }));
  EXPECT_EQ(QUrl(fileManager.shownItems().value(0)).toLocalFile(), document);
}

}  // namespace
}  // namespace lanternix
