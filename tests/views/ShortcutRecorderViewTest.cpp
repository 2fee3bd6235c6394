#include "Views/Style/Contrast.h"
#include "Views/Style/Palettes.h"
#include "Views/Style/TextStyle.h"
#include "views/ShortcutRecorderTest.h"

#include <QtWidgets/QApplication>

namespace lanternix {

namespace {

using namespace Qt::StringLiterals;

class ShortcutRecorderViewTest : public ShortcutRecorderTest {};

}  // namespace

TEST_F(ShortcutRecorderViewTest, ShowsTheShortcut) {
  EXPECT_EQ(recorder->text(), u"⇧⌘Space"_s);
}

TEST_F(ShortcutRecorderViewTest, FollowsAnotherShortcut) {
  service.setCurrentShortcut({40, HotkeyShortcut::control});
  EXPECT_EQ(recorder->text(), u"⌃K"_s);
}

TEST_F(ShortcutRecorderViewTest, AClick_AsksForAShortcut) {
  click();
  EXPECT_TRUE(recorder->isRecording());
  EXPECT_EQ(recorder->text(), u"Press shortcut..."_s);
}

TEST_F(ShortcutRecorderViewTest, SpaceOnTheButton_AsksForAShortcutToo) {
  recorder->setFocus();
  QTest::keyClick(recorder, Qt::Key_Space);
  EXPECT_TRUE(recorder->isRecording());
}

TEST_F(ShortcutRecorderViewTest, AKeyWithModifiers_BecomesTheShortcutAndIsSwallowed) {
  click();
  field->setFocus();
  tap(keyK(), Qt::MetaModifier | Qt::AltModifier);
  EXPECT_EQ(service.currentShortcut(),
            (HotkeyShortcut{40, HotkeyShortcut::command | HotkeyShortcut::option}));
  EXPECT_EQ(recorder->text(), u"⌥⌘K"_s);
  EXPECT_FALSE(recorder->isRecording());
  EXPECT_EQ(field->text(), QString());
}

TEST_F(ShortcutRecorderViewTest, AKeyWithoutModifiers_ReachesTheWindowAndRecordsNothing) {
  click();
  field->setFocus();
  tap(keyK());
  EXPECT_EQ(field->text(), u"k"_s);
  EXPECT_EQ(recorder->text(), u"Press shortcut..."_s);
  EXPECT_EQ(service.currentShortcut(), HotkeyShortcut());
}

TEST_F(ShortcutRecorderViewTest, Escape_DoesNotEndRecording) {
  click();
  tap(keyEscape());
  EXPECT_TRUE(recorder->isRecording());
}

TEST_F(ShortcutRecorderViewTest, EscapeWithAModifier_IsRecorded) {
  click();
  tap(keyEscape(), Qt::ControlModifier);
  EXPECT_EQ(recorder->text(), u"⌃⎋"_s);
}

TEST_F(ShortcutRecorderViewTest, ASecondClick_EndsRecordingAndKeepsTheShortcut) {
  click();
  click();
  EXPECT_FALSE(recorder->isRecording());
  EXPECT_EQ(recorder->text(), u"⇧⌘Space"_s);
  tap(keyK(), Qt::ControlModifier);
  EXPECT_EQ(service.currentShortcut(), HotkeyShortcut());
}

TEST_F(ShortcutRecorderViewTest, AfterARecording_KeysDoWhatTheyAlwaysDo) {
  click();
  tap(keyK(), Qt::ControlModifier);
  field->setFocus();
  tap(keyK());
  tap(keyF5(), Qt::ShiftModifier);
  EXPECT_EQ(field->text(), u"k"_s);
  EXPECT_EQ(recorder->text(), u"⌃K"_s);
}

TEST_F(ShortcutRecorderViewTest, OnlyTheFourModifiers_AreStored) {
  click();
  tap(keyK(), Qt::ControlModifier | Qt::KeypadModifier | Qt::GroupSwitchModifier);
  EXPECT_EQ(service.currentShortcut().modifiers, HotkeyShortcut::control);
}

TEST_F(ShortcutRecorderViewTest, CapsLock_ChangesNothing) {
  click();
  const Key lockedK{keyK().scanCode, 'K', Qt::Key_K, u"K"_s};
  tap(lockedK, Qt::ControlModifier);
  EXPECT_EQ(service.currentShortcut(), (HotkeyShortcut{40, HotkeyShortcut::control}));
}

TEST_F(ShortcutRecorderViewTest, ShiftF5_IsStoredByItsCode) {
  click();
  tap(keyF5(), Qt::ShiftModifier);
  EXPECT_EQ(service.currentShortcut(), (HotkeyShortcut{96, 0x20000}));
  EXPECT_EQ(recorder->text(), u"⇧F5"_s);
}

TEST_F(ShortcutRecorderViewTest, AKeyOfANonLatinLayout_GoesByItsPlace) {
  click();
  constexpr quint32 cyrillicEl = 0x6cc;
  tap({keyK().scanCode, cyrillicEl, static_cast<Qt::Key>(0x41b), u"л"_s}, Qt::ControlModifier);
  EXPECT_EQ(recorder->text(), u"⌃K"_s);
}

TEST_F(ShortcutRecorderViewTest, AKeyWithoutAName_IsRecordedAndShowsItsModifiers) {
  click();
  constexpr quint32 homeKey = 115;
  tap({110, 0xff50, Qt::Key_Home, {}}, Qt::ControlModifier);
  EXPECT_EQ(service.currentShortcut(), (HotkeyShortcut{homeKey, HotkeyShortcut::control}));
  EXPECT_EQ(recorder->text(), u"⌃"_s);
}

TEST_F(ShortcutRecorderViewTest, ModifiersAlone_RecordNothing) {
  click();
  tap({50, 0xffe1, Qt::Key_Shift, {}}, Qt::ControlModifier);
  tap({133, 0xffeb, Qt::Key_Super_L, {}}, Qt::ShiftModifier);
  // A level switch in the place of a character.
  tap({51, 0xfe03, Qt::Key_AltGr, {}}, Qt::ControlModifier);
  EXPECT_TRUE(recorder->isRecording());
  EXPECT_EQ(service.currentShortcut(), HotkeyShortcut());
}

TEST_F(ShortcutRecorderViewTest, AKeyThatNoShortcutCanHave_RecordsNothing) {
  click();
  tap({255, 0x1008ff4a, Qt::Key_unknown, {}}, Qt::ControlModifier);
  EXPECT_TRUE(recorder->isRecording());
}

TEST_F(ShortcutRecorderViewTest, WhileRecording_KeysAreNotTakenForCommandsOfTheWindow) {
  click();
  send(QEvent::ShortcutOverride, keyK(), Qt::ControlModifier);
  EXPECT_TRUE(wasOverridden);
  EXPECT_TRUE(recorder->isRecording()) << "only the press itself is recorded";
}

TEST_F(ShortcutRecorderViewTest, ItsSize_IsThatOfTheTextAndThePadding) {
  const QFontMetrics metrics(textFont(TextStyle::subheadline));
  const int height = metrics.height() + 12;
  EXPECT_EQ(recorder->sizeHint().height(), height);
  const int wide = recorder->sizeHint().width();
  service.setCurrentShortcut({40, HotkeyShortcut::control});
  EXPECT_LT(recorder->sizeHint().width(), wide);
  click();
  EXPECT_EQ(recorder->sizeHint().height(), height);
  EXPECT_GE(recorder->sizeHint().width(),
            metrics.horizontalAdvance(u"Press shortcut..."_s) + 24 + 4 + 8);
}

TEST_F(ShortcutRecorderViewTest, Recording_IsRedAndCanBeRead) {
  const QPalette before = QApplication::palette();
  for (const QPalette &palette : {Palettes::light(), Palettes::dark()}) {
    QApplication::setPalette(palette);
    QCoreApplication::processEvents();
    const QImage idle = recorder->grab().toImage();
    click();
    const QImage image = recorder->grab().toImage();
    click();
    EXPECT_NE(idle, image);
    const QColor ground = image.pixelColor(image.width() / 2, 3);
    EXPECT_GT(ground.red(), ground.green());
    double strongest = 0;
    for (int x = 0; x < image.width(); ++x) {
      const QColor color = image.pixelColor(x, image.height() / 2);
      strongest = qMax(strongest, Contrast::ratio(color, ground));
    }
    EXPECT_GE(strongest, Contrast::ofText - 0.3) << "strokes blend with the ground at their edges";
  }
  QApplication::setPalette(before);
}

TEST_F(ShortcutRecorderViewTest, AScreenReader_HearsWhatItIsForAndWhatItShows) {
  EXPECT_EQ(recorder->accessibleName(), u"Toggle Popup Panel"_s);
  EXPECT_EQ(recorder->accessibleDescription(), u"⇧⌘Space"_s);
  click();
  EXPECT_EQ(recorder->accessibleDescription(), u"Press shortcut..."_s);
}

}  // namespace lanternix
