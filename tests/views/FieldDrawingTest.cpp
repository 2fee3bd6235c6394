#include "Views/Style/Contrast.h"
#include "Views/Style/Destructive.h"
#include "Views/Style/Palettes.h"
#include "Views/Style/SystemColors.h"

#include <QtTest/QTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QSpinBox>
#include <QtWidgets/QStyle>
#include <QtWidgets/QStyleOptionSpinBox>

#include <gtest/gtest.h>

namespace lanternix {

namespace {

using namespace Qt::StringLiterals;

/// A spin box that tells where its parts are.
class OpenSpinBox : public QSpinBox {
 public:
  QRect part(QStyle::SubControl part) const {
    QStyleOptionSpinBox option;
    initStyleOption(&option);
    return style()->subControlRect(QStyle::CC_SpinBox, &option, part, this);
  }
};

class FieldDrawingTest : public testing::Test {
 protected:
  void SetUp() override {
    auto *layout = new QHBoxLayout(&window);
    field = new QLineEdit;
    box = new QComboBox;
    box->addItems({u"Directory"_s, u"Link"_s});
    spin = new OpenSpinBox;
    spin->setRange(0, 9);
    button = new QPushButton(u"Delete"_s);
    button->setAutoDefault(false);
    for (QWidget *control : QList<QWidget *>{field, box, spin, button}) {
      layout->addWidget(control);
    }
    window.show();
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
  }
  ~FieldDrawingTest() override { QApplication::setPalette(palette); }

  static QColor atEdge(QWidget *control) {
    const QImage image = control->grab().toImage();
    return image.pixelColor(1, image.height() / 2);
  }
  /// The colour that differs most from \p ground.
  static QColor ink(const QImage &image, const QColor &ground) {
    QColor strongest = ground;
    for (int y = 0; y < image.height(); ++y) {
      for (int x = 0; x < image.width(); ++x) {
        const QColor color = image.pixelColor(x, y);
        if (Contrast::ratio(color, ground) > Contrast::ratio(strongest, ground)) {
          strongest = color;
        }
      }
    }
    return strongest;
  }

  const QPalette palette = QApplication::palette();
  QWidget window;
  QLineEdit *field = nullptr;
  QComboBox *box = nullptr;
  OpenSpinBox *spin = nullptr;
  QPushButton *button = nullptr;
};

}  // namespace

TEST_F(FieldDrawingTest, AllFields_AreAsHighAsAButton) {
  EXPECT_EQ(field->sizeHint().height(), button->sizeHint().height());
  EXPECT_EQ(box->sizeHint().height(), button->sizeHint().height());
  EXPECT_EQ(spin->sizeHint().height(), button->sizeHint().height());
}

TEST_F(FieldDrawingTest, TheFieldWithTheKeyboard_HasARingInTheAccent) {
  for (QWidget *control : QList<QWidget *>{field, box, spin}) {
    button->setFocus();
    const QColor without = atEdge(control);
    control->setFocus();
    const QColor with = atEdge(control);
    const QColor accent = accentColor(QApplication::palette());
    EXPECT_NE(with, without);
    EXPECT_LT(std::abs(with.hslHue() - accent.hslHue()), 12) << with.name().toStdString();
  }
}

TEST_F(FieldDrawingTest, TheCorners_AreRound) {
  button->setFocus();
  const QImage image = field->grab().toImage();
  const QColor ground = QApplication::palette().color(QPalette::Window);
  EXPECT_EQ(image.pixelColor(2, 2), ground);
  EXPECT_NE(image.pixelColor(image.width() / 2, 2), ground) << "the line";
}

TEST_F(FieldDrawingTest, TheUpperChevron_StepsUpAndTheLowerDown) {
  QTest::mouseClick(spin, Qt::LeftButton, {}, spin->part(QStyle::SC_SpinBoxUp).center());
  EXPECT_EQ(spin->value(), 1);
  QTest::mouseClick(spin, Qt::LeftButton, {}, spin->part(QStyle::SC_SpinBoxDown).center());
  EXPECT_EQ(spin->value(), 0);
}

TEST_F(FieldDrawingTest, AStepBeyondTheRange_LooksFaint) {
  spin->setValue(5);
  const QImage before = spin->grab(spin->part(QStyle::SC_SpinBoxUp)).toImage();
  spin->setValue(9);
  const QColor ground = QApplication::palette().color(QPalette::Base);
  const QImage after = spin->grab(spin->part(QStyle::SC_SpinBoxUp)).toImage();
  EXPECT_LT(Contrast::ratio(ink(after, ground), ground),
            Contrast::ratio(ink(before, ground), ground));
}

TEST_F(FieldDrawingTest, TheTextOfASpinBox_EndsBeforeTheChevrons) {
  const QRect text = spin->part(QStyle::SC_SpinBoxEditField);
  EXPECT_LT(text.right(), spin->part(QStyle::SC_SpinBoxUp).left());
  EXPECT_GT(text.width(), spin->fontMetrics().horizontalAdvance(u"9"_s));
}

TEST_F(FieldDrawingTest, ASpinBoxWithoutButtons_LeavesTheirRoomToTheText) {
  const int before = spin->part(QStyle::SC_SpinBoxEditField).width();
  spin->setButtonSymbols(QAbstractSpinBox::NoButtons);
  EXPECT_GT(spin->part(QStyle::SC_SpinBoxEditField).width(), before);
}

TEST_F(FieldDrawingTest, AFieldWithoutAFrame_TakesNoRoomForOne) {
  const int framed = field->sizeHint().height();
  field->setFrame(false);
  EXPECT_LT(field->sizeHint().height(), framed);
}

TEST_F(FieldDrawingTest, AComboBox_HasRoomForItsLongestText) {
  EXPECT_GT(box->sizeHint().width(), box->fontMetrics().horizontalAdvance(u"Directory"_s) + 20);
}

TEST_F(FieldDrawingTest, ADestructiveButtonThatReturnPresses_IsFilledWithARedThatCanBeReadOn) {
  markDestructive(*button);
  button->setDefault(true);
  for (const QPalette &colors : {Palettes::light(), Palettes::dark()}) {
    QApplication::setPalette(colors);
    QCoreApplication::processEvents();
    const QImage image = button->grab().toImage();
    const QColor ground = image.pixelColor(image.width() / 2, 4);
    EXPECT_GT(ground.red(), ground.green() + 60);
    EXPECT_GT(ground.red(), ground.blue() + 60);
    const QColor text = ink(image.copy(8, 4, image.width() - 16, image.height() - 8), ground);
    EXPECT_GE(Contrast::ratio(text, ground), Contrast::ofText - 0.1);
  }
}

TEST_F(FieldDrawingTest, ADestructiveButton_IsWrittenInARedThatCanBeRead) {
  markDestructive(*button);
  for (const QPalette &colors : {Palettes::light(), Palettes::dark()}) {
    QApplication::setPalette(colors);
    QCoreApplication::processEvents();
    const QImage image = button->grab().toImage();
    const QColor ground = image.pixelColor(image.width() / 2, 4);
    const QColor text = ink(image.copy(8, 4, image.width() - 16, image.height() - 8), ground);
    EXPECT_GT(text.red(), text.green() + 60);
    EXPECT_GT(text.red(), text.blue() + 60);
    EXPECT_GE(Contrast::ratio(text, ground), Contrast::ofText - 0.1);
  }
}

}  // namespace lanternix
