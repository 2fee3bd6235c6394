#include "Views/Controls/SegmentedPicker.h"

#include <QtWidgets/QApplication>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QRadioButton>

#include <gtest/gtest.h>

namespace lanternix {

using namespace Qt::StringLiterals;

TEST(SegmentedPicker, AsksForRoomForItsWidestTextInEverySegment) {
  const SegmentedPicker picker(u"Size"_s, {u"S"_s, u"Extraordinary"_s, u"L"_s});
  EXPECT_GE(picker.sizeHint().width(),
            3 * picker.fontMetrics().horizontalAdvance(u"Extraordinary"_s));
  EXPECT_EQ(picker.sizeHint(), picker.minimumSizeHint());
}

TEST(SegmentedPicker, InARowWithRoom_ShowsEveryTextWhole) {
  QWidget row;
  auto *layout = new QHBoxLayout(&row);
  auto *picker = new SegmentedPicker(u"Size"_s, {u"S"_s, u"Extraordinary"_s, u"L"_s}, &row);
  layout->addWidget(picker);
  layout->addStretch();
  row.resize(800, 100);
  row.show();
  for (const auto *segment : picker->findChildren<QRadioButton *>()) {
    EXPECT_GE(segment->width(), segment->fontMetrics().horizontalAdvance(segment->text()));
  }
}

}  // namespace lanternix
