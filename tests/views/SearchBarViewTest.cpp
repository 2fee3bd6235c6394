#include "Views/Panel/SearchBarView.h"
#include "Views/Style/SymbolButton.h"
#include "support/WaitUntil.h"
#include "views/ViewTest.h"

#include <QtGui/QInputMethodEvent>
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
    state->setPanelVisible(true);
  }

  /// What an input method sends while something is being composed.
  void compose(const QString &text) {
    QInputMethodEvent event(text, {});
    QCoreApplication::sendEvent(field, &event);
  }
  /// What it sends when that is done.
  void commit(const QString &text) {
    QInputMethodEvent event;
    event.setCommitString(text);
    QCoreApplication::sendEvent(field, &event);
  }
  QImage picture() { return field->grab().toImage(); }
  /// Where the caret stands, which is behind what is being composed.
  QRect caret() const { return field->inputMethodQuery(Qt::ImCursorRectangle).toRect(); }

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

TEST_F(SearchBarViewTest, TheClearButton_LeavesTheKeyboardWithTheField) {
  view->activateWindow();
  view->focusField();
  QTest::keyClick(field, Qt::Key_R);
  QTest::mouseClick(clearButton, Qt::LeftButton);
  EXPECT_TRUE(waitUntil([&] { return field->hasFocus(); }));
  EXPECT_FALSE(clearButton->hasFocus());
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

TEST_F(SearchBarViewTest, WhatIsBeingComposed_IsShownButNotSearchedFor) {
  const QImage empty = picture();
  compose(QStringLiteral("rep"));
  EXPECT_NE(picture(), empty);
  EXPECT_EQ(state->searchQuery(), QString());
}

TEST_F(SearchBarViewTest, WhatHasBeenComposed_IsSearchedFor) {
  compose(QStringLiteral("re"));
  commit(QStringLiteral("rep"));
  EXPECT_EQ(state->searchQuery(), QStringLiteral("rep"));
  EXPECT_EQ(field->text(), QStringLiteral("rep"));
}

TEST_F(SearchBarViewTest, ACompositionAfterTypedLetters_LeavesThemSearchedFor) {
  QTest::keyClicks(field, QStringLiteral("re"));
  compose(QStringLiteral("p"));
  EXPECT_EQ(state->searchQuery(), QStringLiteral("re"));
  commit(QStringLiteral("p"));
  EXPECT_EQ(state->searchQuery(), QStringLiteral("rep"));
}

TEST_F(SearchBarViewTest, AHiddenField_GivesUpWhatIsBeingComposed) {
  const QImage empty = picture();
  compose(QStringLiteral("rep"));
  view->hide();
  view->show();
  EXPECT_EQ(picture(), empty);
  EXPECT_EQ(state->searchQuery(), QString());
}

TEST_F(SearchBarViewTest, WhatIsComposedTooLate_IsNotTypedIntoTheNextSearch) {
  compose(QStringLiteral("rep"));
  state->onHide = [this] { commit(QStringLiteral("rep")); };
  state->hidePanel();
  EXPECT_EQ(state->searchQuery(), QString());
  EXPECT_EQ(field->text(), QString());
}

TEST_F(SearchBarViewTest, TheClearButton_GivesUpWhatIsBeingComposed) {
  const QRect start = caret();
  QTest::keyClicks(field, QStringLiteral("re"));
  compose(QStringLiteral("p"));
  QTest::mouseClick(clearButton, Qt::LeftButton);
  EXPECT_EQ(field->text(), QString());
  EXPECT_EQ(state->searchQuery(), QString());
  EXPECT_EQ(caret(), start);
}

}  // namespace lanternix
