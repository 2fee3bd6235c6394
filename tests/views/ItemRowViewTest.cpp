#include "Views/Panel/ItemRowView.h"
#include "Views/Panel/PanelMetrics.h"
#include "views/ViewTest.h"

#include <QtCore/QDir>

namespace lanternix {

namespace {

class ItemRowViewTest : public ViewTest {
 protected:
  static PathItem typed(ItemType type, const QString &path) {
    PathItem result = item(QStringLiteral("Item"), group(QStringLiteral("Group")), 0, path);
    result.type = type;
    return result;
  }
};

}  // namespace

TEST_F(ItemRowViewTest, ThePathOfADirectory_ShowsTheHomeDirectoryAsATilde) {
  const QString path = QDir::homePath() + QStringLiteral("/Projects");
  EXPECT_EQ(ItemRowView::displayPath(typed(ItemType::directory, path)),
            QStringLiteral("~/Projects"));
}

TEST_F(ItemRowViewTest, ACommand_ShowsEveryHomeDirectoryAsATilde) {
  const QString home_ = QDir::homePath();
  const QString command = QStringLiteral("cp ") + home_ + QStringLiteral("/a ") + home_;
  EXPECT_EQ(ItemRowView::displayPath(typed(ItemType::command, command)),
            QStringLiteral("cp ~/a ~"));
}

TEST_F(ItemRowViewTest, ALink_IsShownAsStored) {
  const QString link = QStringLiteral("file://") + QDir::homePath();
  EXPECT_EQ(ItemRowView::displayPath(typed(ItemType::link, link)), link);
}

TEST_F(ItemRowViewTest, WithoutPaths_TheRowIsNoTallerThanItsTileNeeds) {
  const auto state = makeState();
  const PanelMetrics metrics = PanelMetrics::forSize(PanelItemSize::medium);
  const ItemRowView row(*state, metrics);
  const double withPath = row.height();
  state->setShowURLs(false);
  EXPECT_LE(row.height(), withPath);
  EXPECT_EQ(row.height(), 32 + 2 * 8);
}

}  // namespace lanternix
