#include "Views/Style/LanternixStyle.h"

#include "Views/Style/ButtonDrawing.h"
#include "Views/Style/FieldDrawing.h"
#include "Views/Style/MenuDrawing.h"

#include <QtWidgets/QAbstractSpinBox>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QMenu>
#include <QtWidgets/QStyleHintReturnMask>
#include <QtWidgets/QStyleOptionButton>
#include <QtWidgets/QStyleOptionComboBox>
#include <QtWidgets/QStyleOptionFrame>
#include <QtWidgets/QStyleOptionMenuItem>
#include <QtWidgets/QStyleOptionSlider>
#include <QtWidgets/QStyleOptionSpinBox>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace lanternix {

namespace {

constexpr int shortestHandle = 28;

/// The handle of a scroll bar that has no buttons at its ends.
QRect scrollBarHandle(const QStyleOptionSlider &option) {
  const bool isHorizontal = option.orientation == Qt::Horizontal;
  const int groove = isHorizontal ? option.rect.width() : option.rect.height();
  const qint64 range = qint64{option.maximum} - option.minimum;
  const qint64 whole = std::max<qint64>(range + option.pageStep, 1);
  const int length = std::clamp(static_cast<int>(qint64{groove} * option.pageStep / whole),
                                std::min(shortestHandle, groove), groove);
  const int start = QStyle::sliderPositionFromValue(
      option.minimum, option.maximum, option.sliderPosition, groove - length, option.upsideDown);
  return isHorizontal ? QRect(start, 0, length, option.rect.height())
                      : QRect(0, start, option.rect.width(), length);
}

/// Whether the text field is a part of another control, which draws the field around it.
bool isInnerField(const QWidget *field) {
  const QWidget *parent = field != nullptr ? field->parentWidget() : nullptr;
  return qobject_cast<const QComboBox *>(parent) != nullptr ||
         qobject_cast<const QAbstractSpinBox *>(parent) != nullptr;
}

/// Whether it is a text field that stands for itself and has not been told to go without a frame.
bool isFramedField(const QStyleOption *option, const QWidget *widget) {
  const auto *frame = qstyleoption_cast<const QStyleOptionFrame *>(option);
  return frame != nullptr && frame->lineWidth > 0 && !isInnerField(widget);
}

}  // namespace

LanternixStyle::LanternixStyle() : QProxyStyle(u"Fusion"_s) {}

void LanternixStyle::polish(QWidget *widget) {
  if (qobject_cast<QMenu *>(widget) != nullptr && m_hasSoftEdges) {
    widget->setAttribute(Qt::WA_TranslucentBackground);
  }
  QProxyStyle::polish(widget);
}

void LanternixStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex *option,
                                        QPainter *painter, const QWidget *widget) const {
  if (control == CC_ComboBox) {
    if (const auto *box = qstyleoption_cast<const QStyleOptionComboBox *>(option)) {
      FieldDrawing::drawComboBox(*painter, *box);
      return;
    }
  }
  if (control == CC_SpinBox) {
    if (const auto *box = qstyleoption_cast<const QStyleOptionSpinBox *>(option)) {
      FieldDrawing::drawSpinBox(*painter, *box);
      return;
    }
  }
  QProxyStyle::drawComplexControl(control, option, painter, widget);
}

void LanternixStyle::drawControl(ControlElement element, const QStyleOption *option,
                                 QPainter *painter, const QWidget *widget) const {
  if (element == CE_MenuItem) {
    if (const auto *item = qstyleoption_cast<const QStyleOptionMenuItem *>(option)) {
      MenuDrawing::drawItem(*painter, *item, widget);
      return;
    }
  }
  if (element == CE_PushButton) {
    if (const auto *button = qstyleoption_cast<const QStyleOptionButton *>(option)) {
      ButtonDrawing::drawButton(*painter, *button, widget);
      return;
    }
  }
  if (element == CE_MenuEmptyArea) {
    return;  // what the panel has drawn already
  }
  QProxyStyle::drawControl(element, option, painter, widget);
}

void LanternixStyle::drawPrimitive(PrimitiveElement element, const QStyleOption *option,
                                   QPainter *painter, const QWidget *widget) const {
  switch (element) {
    case PE_PanelMenu:
      MenuDrawing::drawPanel(*painter, option->palette, option->rect);
      break;
    case PE_FrameMenu:
      break;  // part of the panel
    case PE_PanelLineEdit:
      if (isFramedField(option, widget)) {
        FieldDrawing::drawField(*painter, *option);
      } else if (!isInnerField(widget)) {
        QProxyStyle::drawPrimitive(element, option, painter, widget);
      }
      break;
    default:
      QProxyStyle::drawPrimitive(element, option, painter, widget);
  }
}

int LanternixStyle::pixelMetric(PixelMetric metric, const QStyleOption *option,
                                const QWidget *widget) const {
  switch (metric) {
    case PM_MenuHMargin:
    case PM_MenuVMargin:
      return MenuDrawing::panelMargin;
    case PM_MenuPanelWidth:
    case PM_ButtonShiftHorizontal:
    case PM_ButtonShiftVertical:
      return 0;
    default:
      return QProxyStyle::pixelMetric(metric, option, widget);
  }
}

QSize LanternixStyle::sizeFromContents(ContentsType type, const QStyleOption *option,
                                       const QSize &contents, const QWidget *widget) const {
  if (type == CT_MenuItem) {
    if (const auto *item = qstyleoption_cast<const QStyleOptionMenuItem *>(option)) {
      return MenuDrawing::itemSize(*item, contents);
    }
  }
  if (type == CT_PushButton) {
    return ButtonDrawing::buttonSize(contents);
  }
  if (type == CT_LineEdit && isFramedField(option, widget)) {
    return FieldDrawing::fieldSize(*option, contents.width());
  }
  if (type == CT_ComboBox || type == CT_SpinBox) {
    return FieldDrawing::steppedSize(*option, contents.width());
  }
  return QProxyStyle::sizeFromContents(type, option, contents, widget);
}

int LanternixStyle::styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                              QStyleHintReturn *returned) const {
  if (hint == blendsWindows) {
    return m_hasSoftEdges ? 1 : 0;
  }
  switch (hint) {
    case SH_ComboBox_AllowWheelScrolling:
      return 0;  // the wheel is meant for the page under the pointer
    case SH_Widget_Animate:
      return m_isMotionReduced ? 0 : 1;
    case SH_Widget_Animation_Duration:
      return m_isMotionReduced ? 0 : QProxyStyle::styleHint(hint, option, widget, returned);
    case SH_Menu_Mask:
      if (auto *mask = qstyleoption_cast<QStyleHintReturnMask *>(returned)) {
        mask->region = MenuDrawing::panelRegion(option->rect);
      }
      return m_hasSoftEdges ? 0 : 1;
    default:
      return QProxyStyle::styleHint(hint, option, widget, returned);
  }
}

QRect LanternixStyle::subElementRect(SubElement element, const QStyleOption *option,
                                     const QWidget *widget) const {
  if (element == SE_LineEditContents && isFramedField(option, widget)) {
    return FieldDrawing::textArea(option->rect);
  }
  return QProxyStyle::subElementRect(element, option, widget);
}

QRect LanternixStyle::subControlRect(ComplexControl control, const QStyleOptionComplex *option,
                                     SubControl subControl, const QWidget *widget) const {
  if (const auto *slider = qstyleoption_cast<const QStyleOptionSlider *>(option);
      slider != nullptr && control == CC_ScrollBar) {
    switch (subControl) {
      case SC_ScrollBarSlider:
        return scrollBarHandle(*slider);
      case SC_ScrollBarGroove:
        return slider->rect;
      case SC_ScrollBarAddLine:
      case SC_ScrollBarSubLine:
        return {};  // no buttons
      default:
        break;
    }
  }
  if (const auto *box = qstyleoption_cast<const QStyleOptionComboBox *>(option);
      box != nullptr && control == CC_ComboBox && subControl != SC_ComboBoxListBoxPopup) {
    return FieldDrawing::partOf(*box, subControl);
  }
  if (const auto *box = qstyleoption_cast<const QStyleOptionSpinBox *>(option);
      box != nullptr && control == CC_SpinBox) {
    return FieldDrawing::partOf(*box, subControl);
  }
  return QProxyStyle::subControlRect(control, option, subControl, widget);
}

}  // namespace lanternix
