#include "views/AppDelegateTest.h"

namespace lanternix {

/// What keys do while the panel is shown.
using AppDelegateKeysTest = AppDelegateTest;

TEST_F(AppDelegateKeysTest, Escape_HidesAndClearsSearchAndSelection) {
  start();
  delegate->appState().setSearchQuery(QStringLiteral("rep"));
  pressEscape();
  EXPECT_FALSE(panel()->isVisible());
  EXPECT_FALSE(delegate->appState().isPanelVisible());
  EXPECT_EQ(delegate->appState().searchQuery(), QString());
  EXPECT_FALSE(delegate->appState().selectedItemId().has_value());
}

TEST_F(AppDelegateKeysTest, TheArrows_MoveTheSelectionRoundTheEnds) {
  start();
  pressUp();
  EXPECT_EQ(delegate->appState().selectedItemId(), notes.id);
  pressDown();
  EXPECT_EQ(delegate->appState().selectedItemId(), report.id);
}

TEST_F(AppDelegateKeysTest, Return_OpensTheSelectedItem_WhateverTheModifiers) {
  start();
  pressDown();
  pressDown();
  pressReturn(Qt::ShiftModifier);
  EXPECT_EQ(processLauncher.launches, QStringList(QStringLiteral("/bin/sh -c edit notes")));
  EXPECT_FALSE(panel()->isVisible());
}

// An input method takes the keys that it composes with; what it lets pass is meant for the panel,
// also while something is being composed.

TEST_F(AppDelegateKeysTest, AnArrowThatAnInputMethodLetsPass_MovesTheSelection) {
  start();
  compose(QStringLiteral("ka"));
  pressDown();
  EXPECT_EQ(delegate->appState().selectedItemId(), report.id);
  EXPECT_EQ(delegate->appState().searchQuery(), QString());
}

TEST_F(AppDelegateKeysTest, AReturnThatAnInputMethodLetsPass_OpensTheSelectedItem) {
  start();
  pressUp();
  compose(QStringLiteral("ka"));
  pressReturn();
  EXPECT_EQ(processLauncher.launches, QStringList(QStringLiteral("/bin/sh -c edit notes")));
}

TEST_F(AppDelegateKeysTest, AnEscapeThatAnInputMethodLetsPass_HidesThePanelAndEmptiesTheField) {
  start();
  const QVariant caret = field()->inputMethodQuery(Qt::ImCursorRectangle);
  compose(QStringLiteral("ka"));
  ASSERT_NE(field()->inputMethodQuery(Qt::ImCursorRectangle), caret);
  pressEscape();
  EXPECT_FALSE(panel()->isVisible());
  EXPECT_EQ(field()->inputMethodQuery(Qt::ImCursorRectangle), caret);
}

TEST_F(AppDelegateKeysTest, CommandComma_HidesThePanelAndOpensTheSettings) {
  start();
  pressComma(Qt::MetaModifier);
  EXPECT_FALSE(panel()->isVisible());
  ASSERT_NE(settings(), nullptr);
  EXPECT_TRUE(settings()->isVisible());
}

TEST_F(AppDelegateKeysTest, ControlComma_DoesTheSame) {
  start();
  pressComma(Qt::ControlModifier);
  EXPECT_FALSE(panel()->isVisible());
  ASSERT_NE(settings(), nullptr);
  EXPECT_TRUE(settings()->isVisible());
}

TEST_F(AppDelegateKeysTest, APlainComma_IsTyped) {
  start();
  panel()->activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(panel()));
  pressComma({});
  EXPECT_TRUE(panel()->isVisible());
  EXPECT_EQ(delegate->appState().searchQuery(), QStringLiteral(","));
}

TEST_F(AppDelegateKeysTest, AKeyOnItsWayToThePanelAsItIsHidden_IsNotTyped) {
  start();
  panel()->activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(panel()));
  delegate->appState().hidePanel();
  press(38, 'a', {}, Qt::Key_A, QStringLiteral("a"));
  EXPECT_EQ(delegate->appState().searchQuery(), QString());
}

}  // namespace lanternix
