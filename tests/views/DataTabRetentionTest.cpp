#include "Views/Settings/BackupRowView.h"
#include "views/DataSettingsTabTest.h"

#include <QtGui/QWheelEvent>
#include <QtGui/QWindow>
#include <QtWidgets/QMenu>

using namespace Qt::StringLiterals;

namespace lanternix {

namespace {

class DataTabRetentionTest : public DataSettingsTabTest {};

}  // namespace

TEST_F(DataTabRetentionTest, TheRetention_CountsInDays) {
  state->setBackupRetentionDays(2);
  show();
  EXPECT_EQ(stepper()->text(), u"2 days"_s);
  stepper()->stepDown();
  EXPECT_EQ(stepper()->text(), u"1 day"_s);
  EXPECT_EQ(state->backupRetentionDays(), 1);
}

TEST_F(DataTabRetentionTest, TheRetention_StopsAt1AndAt365) {
  state->setBackupRetentionDays(1);
  show();
  stepper()->stepDown();
  EXPECT_EQ(state->backupRetentionDays(), 1);
  state->setBackupRetentionDays(364);
  stepper()->stepUp();
  stepper()->stepUp();
  EXPECT_EQ(state->backupRetentionDays(), 365);
}

TEST_F(DataTabRetentionTest, LoweringTheRetention_RemovesTheOldestBackupsAtOnce) {
  writeBackups(4);
  state->setBackupRetentionDays(5);
  show();
  stepper()->stepDown();
  EXPECT_EQ(backupFiles().size(), 4);
  EXPECT_TRUE(texts(*tab).contains(u"Saved Backups (4)"_s));
}

TEST_F(DataTabRetentionTest, TypingANumber_AppliesItWhenItIsFinished) {
  writeBackups(4);
  show();
  stepper()->setFocus();
  stepper()->selectAll();
  type(*tab, u"30"_s);
  EXPECT_EQ(state->backupRetentionDays(), 15);
  EXPECT_EQ(backupFiles().size(), 5);  // and not three, on the way to thirty
  press(*tab, Qt::Key_Return);
  EXPECT_EQ(state->backupRetentionDays(), 30);
  EXPECT_EQ(stepper()->text(), u"30 days"_s);
  EXPECT_EQ(backupFiles().size(), 5);
}

TEST_F(DataTabRetentionTest, TypingATooLargeNumber_IsNotTaken) {
  show();
  stepper()->setFocus();
  stepper()->selectAll();
  type(*tab, u"400"_s);
  press(*tab, Qt::Key_Return);
  EXPECT_EQ(state->backupRetentionDays(), 40);
}

TEST_F(DataTabRetentionTest, TypingNothingOrZero_LeavesTheRetention) {
  show();
  for (const QString &text : {u" "_s, u"0"_s}) {
    stepper()->setFocus();
    stepper()->selectAll();
    type(*tab, text);
    press(*tab, Qt::Key_Return);
    EXPECT_EQ(state->backupRetentionDays(), 15);
    EXPECT_EQ(stepper()->text(), u"15 days"_s);
  }
}

TEST_F(DataTabRetentionTest, TypingANumberAndPressingARestoreButton_AppliesTheNumber) {
  writeBackups(4);
  show();
  tab->resize(600, 1000);  // so that the rows are in sight
  stepper()->setFocus();
  stepper()->selectAll();
  type(*tab, u"3"_s);
  // The press takes the keyboard from the field, and that makes the rows anew, this one too.
  const QAbstractButton *restore = button(*tab, u"Restore"_s);
  ASSERT_NE(restore, nullptr);
  QTest::mouseClick(tab->windowHandle(), Qt::LeftButton, {},
                    restore->mapTo(tab.get(), restore->rect().center()));
  EXPECT_EQ(state->backupRetentionDays(), 3);
  EXPECT_TRUE(texts(*tab).contains(u"Saved Backups (3)"_s));
  EXPECT_TRUE(waitUntil([this] { return tab->findChildren<BackupRowView *>().size() == 3; }));
}

TEST_F(DataTabRetentionTest, AnotherWindowWhileANumberIsTyped_RemovesNoBackups) {
  writeBackups(4);
  show();
  stepper()->setFocus();
  stepper()->selectAll();
  type(*tab, u"1"_s);
  QWidget other;
  present(other);
  EXPECT_EQ(state->backupRetentionDays(), 15);
  EXPECT_EQ(backupFiles().size(), 5) << "one was on the way to a hundred";
  EXPECT_EQ(stepper()->text(), u"1"_s) << "to be typed on";

  activate(*tab);
  type(*tab, u"00"_s);
  press(*tab, Qt::Key_Tab);
  EXPECT_EQ(state->backupRetentionDays(), 100);
  EXPECT_EQ(stepper()->text(), u"100 days"_s);
}

TEST_F(DataTabRetentionTest, AWindowMinimizedWhileANumberIsTyped_RemovesNoBackups) {
  writeBackups(4);
  show();
  stepper()->setFocus();
  stepper()->selectAll();
  type(*tab, u"1"_s);
  QHideEvent minimizing;
  QSpontaneKeyEvent::setSpontaneous(&minimizing);  // as the window manager makes it
  qApp->notify(stepper(), &minimizing);
  EXPECT_EQ(state->backupRetentionDays(), 15);
  EXPECT_EQ(stepper()->text(), u"1"_s);
}

TEST_F(DataTabRetentionTest, AnotherTabAfterANumberIsTyped_AppliesIt) {
  show();
  stepper()->setFocus();
  stepper()->selectAll();
  type(*tab, u"30"_s);
  tab->hide();
  EXPECT_TRUE(waitUntil([this] { return state->backupRetentionDays() == 30; }));
}

TEST_F(DataTabRetentionTest, TheEndWhileANumberIsTyped_RemovesNoBackups) {
  writeBackups(4);
  show();
  stepper()->setFocus();
  stepper()->selectAll();
  type(*tab, u"1"_s);
  tab.reset();
  EXPECT_EQ(state->backupRetentionDays(), 15);
  EXPECT_EQ(backupFiles().size(), 5);
}

TEST_F(DataTabRetentionTest, AMenuWhileANumberIsTyped_RemovesNoBackups) {
  writeBackups(4);
  show();
  stepper()->setFocus();
  stepper()->selectAll();
  type(*tab, u"1"_s);
  QMenu menu;
  menu.addAction(u"Paste"_s);
  menu.popup(stepper()->mapToGlobal(QPoint()));
  EXPECT_EQ(backupFiles().size(), 5);
  menu.close();
  EXPECT_EQ(backupFiles().size(), 5);
  EXPECT_EQ(stepper()->text(), u"1"_s);
}

TEST_F(DataTabRetentionTest, TheWheelOverTheStepper_RemovesNoBackups) {
  show();
  stepper()->setFocus();
  QWheelEvent turn(QPointF(5, 5), stepper()->mapToGlobal(QPointF(5, 5)), {}, QPoint(0, -120),
                   Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
  QApplication::sendEvent(stepper(), &turn);
  EXPECT_EQ(state->backupRetentionDays(), 15);
}

TEST_F(DataTabRetentionTest, AStoredRetentionBeyondTheRange_StaysUntilItIsChanged) {
  state->setBackupRetentionDays(1000);
  show();
  EXPECT_EQ(stepper()->text(), u"365 days"_s);
  EXPECT_EQ(state->backupRetentionDays(), 1000);
}

}  // namespace lanternix
