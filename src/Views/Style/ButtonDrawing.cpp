#include "Views/Style/ButtonDrawing.h"

#include "Views/Style/AccentFill.h"
#include "Views/Style/Contrast.h"
#include "Views/Style/Destructive.h"
#include "Views/Style/FillStyle.h"
#include "Views/Style/FocusRing.h"
#include "Views/Style/SystemColors.h"

#include <QtGui/QPainter>
#include <QtWidgets/QStyleOptionButton>
#include <QtWidgets/QWidget>

namespace lanternix::ButtonDrawing {

namespace {

constexpr double radius = 6;
constexpr int sidePadding = 12;
constexpr int linePadding = 5;
constexpr int iconSpacing = 5;

bool isProminent(const QStyleOptionButton &option) {
  return option.features.testFlag(QStyleOptionButton::DefaultButton) &&
         option.state.testFlag(QStyle::State_Enabled);
}

/// The colours of a prominent button.
AccentFill prominentFill(const QStyleOptionButton &option, const QWidget *button) {
  return isDestructive(button) ? AccentFill::of(systemColor(SystemColor::red, option.palette))
                               : AccentFill::of(option.palette);
}

/// What the button is filled with when nothing happens to it.
QColor restingGround(const QStyleOptionButton &option, const QWidget *button) {
  return isProminent(option) ? prominentFill(option, button).ground
                             : fillColor(FillStyle::quaternary, option.palette);
}

QColor groundColor(const QStyleOptionButton &option, const QWidget *button) {
  constexpr int pressedDarkness = 115;  // percent
  constexpr int hoverDarkness = 105;
  const QColor ground = restingGround(option, button);
  if (option.state.testFlag(QStyle::State_Sunken)) {
    return ground.darker(pressedDarkness);
  }
  return option.state.testFlag(QStyle::State_MouseOver) ? ground.darker(hoverDarkness) : ground;
}

QColor textColor(const QStyleOptionButton &option, const QWidget *button) {
  if (!option.state.testFlag(QStyle::State_Enabled)) {
    return fillColor(FillStyle::tertiary, option.palette);
  }
  if (isProminent(option)) {
    return prominentFill(option, button).text;
  }
  if (isDestructive(button)) {
    const QColor window = option.palette.color(QPalette::Window);
    return Contrast::readableOn(Contrast::laidOn(window, groundColor(option, button)),
                                systemColor(SystemColor::red, option.palette));
  }
  return fillColor(FillStyle::primary, option.palette);
}

QImage tinted(const QIcon &icon, const QSize &size, double ratio, const QColor &color) {
  QImage image =
      icon.pixmap(size, ratio).toImage().convertToFormat(QImage::Format_ARGB32_Premultiplied);
  QPainter painter(&image);
  painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
  painter.fillRect(image.rect(), color);
  return image;
}

}  // namespace

void drawButton(QPainter &painter, const QStyleOptionButton &option, const QWidget *button) {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(groundColor(option, button));
  constexpr double ring = FocusRing::width;
  const QRectF shape = QRectF(option.rect).adjusted(ring, ring, -ring, -ring);
  painter.drawRoundedRect(shape, radius, radius);
  if (option.state.testFlag(QStyle::State_HasFocus)) {
    constexpr double inset = FocusRing::width / 2;
    FocusRing::draw(painter, option.palette,
                    QRectF(option.rect).adjusted(inset, inset, -inset, -inset), radius + 1);
  }

  const QColor color = textColor(option, button);
  const int textWidth = option.fontMetrics.size(Qt::TextShowMnemonic, option.text).width();
  const int iconWidth = option.icon.isNull() ? 0 : option.iconSize.width() + iconSpacing;
  QRectF text = shape;
  text.setLeft(shape.center().x() - (textWidth + iconWidth) / 2.0);
  if (iconWidth > 0) {
    const QPointF corner(text.left(), shape.center().y() - option.iconSize.height() / 2.0);
    painter.drawImage(
        corner, tinted(option.icon, option.iconSize, painter.device()->devicePixelRatioF(), color));
    text.setLeft(text.left() + iconWidth);
  }
  painter.setPen(color);
  painter.drawText(text, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextHideMnemonic, option.text);
  painter.restore();
}

QSize buttonSize(const QSize &contents) {
  return contents + QSize(2 * sidePadding, 2 * linePadding);
}

}  // namespace lanternix::ButtonDrawing
