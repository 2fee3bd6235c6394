#include "Models/PathItem.h"
#include "Utilities/IconHelper.h"
#include "support/FakeWorkspace.h"

#include <gtest/gtest.h>

namespace lanternix {

namespace {

class IconHelperTest : public testing::Test {
 protected:
  IconHelper::Icon icon(ItemType type, const QString &path = QStringLiteral("/a/thing")) const {
    PathItem item;
    item.type = type;
    item.path = path;
    return IconHelper(workspace).icon(item);
  }

  FakeWorkspace workspace;
};

const QStringList anyFile{QStringLiteral("any-file")};
const QStringList pdf{QStringLiteral("application-pdf"), QStringLiteral("x-office-document")};

}  // namespace

TEST_F(IconHelperTest, ADirectory_HasTheIconOfFolders) {
  EXPECT_EQ(icon(ItemType::directory).names, QStringList(QStringLiteral("folder")));
  EXPECT_EQ(icon(ItemType::directory).symbol, QStringLiteral("folder.fill"));
}

TEST_F(IconHelperTest, ADirectory_DoesNotCareWhatIsAtItsPath) {
  workspace.icons.insert(QStringLiteral("/a/thing"), pdf);
  EXPECT_EQ(icon(ItemType::directory).names, QStringList(QStringLiteral("folder")));
}

TEST_F(IconHelperTest, AFileThatExists_HasItsOwnIcon) {
  workspace.icons.insert(QStringLiteral("/a/thing"), pdf);
  EXPECT_EQ(icon(ItemType::file).names, pdf);
  EXPECT_EQ(icon(ItemType::file).symbol, QStringLiteral("doc.fill"));
}

TEST_F(IconHelperTest, AFileThatGoesAndComesBack_LosesItsIconAndGetsItAgain) {
  workspace.icons.insert(QStringLiteral("/a/thing"), pdf);
  EXPECT_EQ(icon(ItemType::file).names, pdf);
  workspace.icons.clear();
  EXPECT_EQ(icon(ItemType::file).names, anyFile);
  workspace.icons.insert(QStringLiteral("/a/thing"), pdf);
  EXPECT_EQ(icon(ItemType::file).names, pdf);
}

TEST_F(IconHelperTest, ALinkAndACommand_AreDrawingsWhateverIsAtTheirPaths) {
  workspace.icons.insert(QStringLiteral("/a/thing"), pdf);
  EXPECT_EQ(icon(ItemType::link), (IconHelper::Icon{{}, QStringLiteral("globe")}));
  EXPECT_EQ(icon(ItemType::command), (IconHelper::Icon{{}, QStringLiteral("terminal")}));
}

}  // namespace lanternix
