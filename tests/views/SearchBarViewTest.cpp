#include "Views/Panel/SearchBarView.h"
#include "Views/Style/SymbolButton.h"
#include "views/ViewTest.h"

#include <QtTest/QTest>
#include <QtWidgets/QLineEdit>

namespace lanternix {

namespace {

class SearchBarViewTest : public ViewTest {
 protected:
  void SetUp() override {
    work = group(QStringLiteral("Work"));
    report = item(QStringLiteral("Report"), work);
    state = makeState({work}, {report});
    view = std::make_unique<SearchBarView>(*state);
    field = view->findChild<QLineEdit *>();
    clearButton = view->findChild<SymbolButton *>();
    view->show();
  }

  PathGroup work;
  PathItem report;
  std::unique_ptr<AppState> state;
  std::unique_ptr<SearchBarView> view;
  QLineEdit *field = nullptr;
  SymbolButton *clearButton = nullptr;
};

}  // namespace

TEST_F(SearchBarViewTest, SaysWhatCanBeTyped) {
  EXPECT_EQ(field->placeholderText(), QStringLiteral("Search... or group: query to scope"));
}

TEST_F(SearchBarViewTest, EveryLetter_ReachesTheQueryAtOnce) {
  QTest::keyClicks(field, QStringLiteral("re"));
  EXPECT_EQ(state->searchQuery(), QStringLiteral("re"));
}

TEST_F(SearchBarViewTest, TheClearButton_StandsThereOnlyWhileThereIsText) {
  EXPECT_FALSE(clearButton->isVisible());
  QTest::keyClick(field, Qt::Key_R);
  EXPECT_TRUE(clearButton->isVisible());
  QTest::mouseClick(clearButton, Qt::LeftButton);
  EXPECT_EQ(state->searchQuery(), QString());
  EXPECT_EQ(field->text(), QString());
  EXPECT_FALSE(clearButton->isVisible());
}

TEST_F(SearchBarViewTest, HidingThePanel_EmptiesTheField) {
  QTest::keyClicks(field, QStringLiteral("re"));
  state->hidePanel();
  EXPECT_EQ(field->text(), QString());
}

TEST_F(SearchBarViewTest, EditingInTheMiddle_KeepsTheCursorThere) {
  QTest::keyClicks(field, QStringLiteral("rt"));
  field->setCursorPosition(1);
  QTest::keyClick(field, Qt::Key_E);
  EXPECT_EQ(field->text(), QStringLiteral("ret"));
  EXPECT_EQ(field->cursorPosition(), 2);
}

TEST_F(SearchBarViewTest, ReturnInTheField_OpensTheFirstMatch) {
  QTest::keyClicks(field, QStringLiteral("rep"));
  QTest::keyClick(field, Qt::Key_Return);
  EXPECT_TRUE(state->items().front().lastAccessed.has_value());
}

}  // namespace lanternix
