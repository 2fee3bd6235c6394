#include "Views/Style/FieldDrawing.h"

#include "Views/Style/FillStyle.h"
#include "Views/Style/FocusRing.h"
#include "Views/Style/Symbol.h"
#include "Views/Style/SystemColors.h"

#include <QtGui/QPainter>
#include <QtWidgets/QStyleOptionComboBox>
#include <QtWidgets/QStyleOptionSpinBox>

using namespace Qt::StringLiterals;

namespace lanternix::FieldDrawing {

namespace {

constexpr double radius = 6;
constexpr int sidePadding = 8;  // with the ring
constexpr int linePadding = 5;
constexpr int chevronColumn = 22;
constexpr double chevronSide = 12;

QColor chevronColor(const QStyleOption &option, bool isActive) {
  return fillColor(isActive ? FillStyle::secondary : FillStyle::quaternary, option.palette);
}

/// The chevron that points down, or its mirror image.
void drawChevron(QPainter &painter, const QRect &area, const QColor &color, bool pointsUp) {
  const QPointF centre = QRectF(area).center();
  painter.save();
  painter.translate(centre);
  if (pointsUp) {
    painter.scale(1, -1);
  }
  painter.translate(-centre);
  Symbol::draw(painter, area, u"chevron.down"_s, chevronSide, color);
  painter.restore();
}

void drawStep(QPainter &painter, const QStyleOptionSpinBox &option, QStyle::SubControl part) {
  const bool isUp = part == QStyle::SC_SpinBoxUp;
  const bool isPossible = option.state.testFlag(QStyle::State_Enabled) &&
                          option.stepEnabled.testFlag(isUp ? QAbstractSpinBox::StepUpEnabled
                                                           : QAbstractSpinBox::StepDownEnabled);
  const bool isPressed = isPossible && option.activeSubControls.testFlag(part) &&
                         option.state.testFlag(QStyle::State_Sunken);
  const QRect area = partOf(option, part);
  if (isPressed) {
    constexpr double groundRadius = 3;
    painter.setPen(Qt::NoPen);
    painter.setBrush(fillColor(FillStyle::quaternary, option.palette));
    painter.drawRoundedRect(area.adjusted(2, 0, -1, 0), groundRadius, groundRadius);
  }
  drawChevron(painter, area, chevronColor(option, isPossible), isUp);
}

/// The column of the chevrons, within the line.
QRect chevronArea(const QRect &field) {
  constexpr int inset = static_cast<int>(FocusRing::width) + 1;
  return {field.right() + 1 - inset - chevronColumn, field.top() + inset, chevronColumn,
          field.height() - 2 * inset};
}

QRect textBesideChevrons(const QRect &field) {
  QRect area = textArea(field);
  area.setRight(chevronArea(field).left() - 1);
  return area;
}

}  // namespace

void drawField(QPainter &painter, const QStyleOption &option) {
  constexpr float lineOpacity = 0.25F;
  constexpr double disabledOpacity = 0.5;
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setOpacity(option.state.testFlag(QStyle::State_Enabled) ? 1 : disabledOpacity);
  constexpr double inset = FocusRing::width + 0.5;
  painter.setPen(QPen(withOpacity(fillColor(FillStyle::primary, option.palette), lineOpacity), 1));
  painter.setBrush(option.palette.color(QPalette::Base));
  painter.drawRoundedRect(QRectF(option.rect).adjusted(inset, inset, -inset, -inset), radius,
                          radius);
  if (option.state.testFlag(QStyle::State_HasFocus)) {
    constexpr double ringInset = FocusRing::width / 2;
    FocusRing::draw(painter, option.palette,
                    QRectF(option.rect).adjusted(ringInset, ringInset, -ringInset, -ringInset),
                    radius + 1);
  }
  painter.restore();
}

void drawComboBox(QPainter &painter, const QStyleOptionComboBox &option) {
  drawField(painter, option);
  drawChevron(painter, partOf(option, QStyle::SC_ComboBoxArrow),
              chevronColor(option, option.state.testFlag(QStyle::State_Enabled)), false);
}

void drawSpinBox(QPainter &painter, const QStyleOptionSpinBox &option) {
  drawField(painter, option);
  if (option.buttonSymbols == QAbstractSpinBox::NoButtons) {
    return;
  }
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  drawStep(painter, option, QStyle::SC_SpinBoxUp);
  drawStep(painter, option, QStyle::SC_SpinBoxDown);
  painter.restore();
}

QRect textArea(const QRect &field) {
  constexpr int line = static_cast<int>(FocusRing::width) + 1;
  return field.adjusted(sidePadding, line, -sidePadding, -line);
}

QRect partOf(const QStyleOptionComboBox &option, QStyle::SubControl part) {
  QRect area = option.rect;
  if (part == QStyle::SC_ComboBoxArrow) {
    area = chevronArea(option.rect);
  } else if (part == QStyle::SC_ComboBoxEditField) {
    area = textBesideChevrons(option.rect);
  }
  return QStyle::visualRect(option.direction, option.rect, area);
}

QRect partOf(const QStyleOptionSpinBox &option, QStyle::SubControl part) {
  QRect area = option.rect;
  const bool hasSteps = option.buttonSymbols != QAbstractSpinBox::NoButtons;
  const QRect column = hasSteps ? chevronArea(option.rect) : QRect();
  const int half = column.height() / 2;
  if (part == QStyle::SC_SpinBoxUp) {
    area = column.adjusted(0, 0, 0, half - column.height());
  } else if (part == QStyle::SC_SpinBoxDown) {
    area = column.adjusted(0, half, 0, 0);
  } else if (part == QStyle::SC_SpinBoxEditField) {
    area = hasSteps ? textBesideChevrons(option.rect) : textArea(option.rect);
  }
  return QStyle::visualRect(option.direction, option.rect, area);
}

QSize fieldSize(const QStyleOption &option, int textWidth) {
  return {textWidth + 2 * sidePadding, option.fontMetrics.height() + 2 * linePadding};
}

QSize steppedSize(const QStyleOption &option, int textWidth) {
  return fieldSize(option, textWidth) + QSize(chevronColumn, 0);
}

}  // namespace lanternix::FieldDrawing
