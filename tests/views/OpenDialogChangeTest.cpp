#include "Views/Controls/Alert.h"
#include "Views/Settings/GroupEditorView.h"
#include "Views/Style/Palettes.h"
#include "Views/Style/TextLabel.h"
#include "views/FormTest.h"

#include <QtWidgets/QPushButton>

namespace lanternix {

namespace {

using namespace Qt::StringLiterals;

/// The desktop gets another look while a sheet or an alert is open.
class OpenDialogChangeTest : public FormTest {
 protected:
  ~OpenDialogChangeTest() override {
    QApplication::setFont(font);
    QApplication::setPalette(palette);
    QCoreApplication::processEvents();
  }

  QDialog *openSheet() {
    present(window);
    auto *sheet = new GroupEditorView(*state, {}, &window);  // deletes itself when it closes
    sheet->open();
    activate(*sheet);
    return sheet;
  }
  QDialog *openAlert() {
    present(window);
    return Alert{.title = u"Delete this?"_s,
                 .message = u"What is said here takes more than a single line of it."_s,
                 .destructiveAction = u"Delete"_s}
        .show(&window);
  }

  static void enlargeFont() {
    QFont larger = QApplication::font();
    larger.setPointSizeF(larger.pointSizeF() * 2);
    QApplication::setFont(larger);
    QCoreApplication::processEvents();
  }
  static void become(const QPalette &colors) {
    QApplication::setPalette(colors);
    QCoreApplication::processEvents();
  }
  static QColor ground(QWidget *dialog) { return dialog->grab().toImage().pixelColor(3, 3); }
  /// Whether no text of the dialog has less room than it takes.
  static bool showsItsTextsWhole(const QDialog &dialog) {
    return std::ranges::all_of(dialog.findChildren<TextLabel *>(), [](const TextLabel *label) {
      const int needed =
          label->wordWrap() ? label->heightForWidth(label->width()) : label->fontMetrics().height();
      return !label->isVisible() || label->height() >= needed;
    });
  }

  const QFont font = QApplication::font();
  const QPalette palette = QApplication::palette();
  std::unique_ptr<AppState> state = makeState();
  QWidget window;
};

}  // namespace

TEST_F(OpenDialogChangeTest, ALargerFont_MakesAnAlertLarger) {
  QDialog *alert = openAlert();
  const int before = alert->height();
  enlargeFont();
  EXPECT_TRUE(waitUntil([&] { return alert->height() > before + before / 2; }));
  EXPECT_TRUE(waitUntil([&] { return showsItsTextsWhole(*alert); }));
}

TEST_F(OpenDialogChangeTest, ALargerFont_LeavesASheetsTextsWhole) {
  QDialog *sheet = openSheet();
  const QAbstractButton *cancel = button(*sheet, u"Cancel"_s);
  ASSERT_NE(cancel, nullptr);
  const int before = cancel->height();
  enlargeFont();
  EXPECT_TRUE(waitUntil([&] { return cancel->height() > before; }));
  EXPECT_TRUE(waitUntil([&] { return showsItsTextsWhole(*sheet); }));
  EXPECT_EQ(sheet->size(), QSize(420, 480));
}

TEST_F(OpenDialogChangeTest, AnotherAppearance_ShowsInSheetsAndAlerts) {
  for (QDialog *dialog : {openSheet(), openAlert()}) {
    become(Palettes::light());
    EXPECT_EQ(ground(dialog), Palettes::light().color(QPalette::Window));
    become(Palettes::dark());
    EXPECT_EQ(ground(dialog), Palettes::dark().color(QPalette::Window));
    dialog->reject();
  }
}

TEST_F(OpenDialogChangeTest, WhatIsTyped_OutlivesBoth) {
  QDialog *sheet = openSheet();
  type(*sheet, u"Pla"_s);
  enlargeFont();
  become(Palettes::dark());
  type(*sheet, u"y"_s);
  press(*sheet, Qt::Key_Return);
  ASSERT_EQ(state->groups().size(), 1);
  EXPECT_EQ(state->groups().front().name, u"Play"_s);
}

}  // namespace lanternix
