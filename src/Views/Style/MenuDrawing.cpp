#include "Views/Style/MenuDrawing.h"

#include "Platform/RoundedRegion.h"
#include "Views/Style/AccentFill.h"
#include "Views/Style/Contrast.h"
#include "Views/Style/Destructive.h"
#include "Views/Style/FillStyle.h"
#include "Views/Style/PixelGrid.h"
#include "Views/Style/Symbol.h"
#include "Views/Style/SystemColors.h"

#include <QtGui/QPainter>
#include <QtWidgets/QMenu>
#include <QtWidgets/QStyleOptionMenuItem>

using namespace Qt::StringLiterals;

namespace lanternix::MenuDrawing {

namespace {

constexpr int sidePadding = 10;
constexpr int linePadding = 4;
constexpr int separatorHeight = 11;
constexpr int iconSpacing = 8;
constexpr int columnSpacing = 24;  // between an entry's text and its shortcut
constexpr int arrowSide = 10;
constexpr double highlightRadius = 5;

QFont fontOf(const QStyleOptionMenuItem &option) {
  return option.font;
}

bool destroys(const QStyleOptionMenuItem &option, const QWidget *widget) {
  const auto *menu = qobject_cast<const QMenu *>(widget);
  return menu != nullptr && isDestructive(menu->actionAt(option.rect.center()));
}

/// A menu keeps a column for the icons of all its entries as soon as one has an icon. The list of a
/// combo box, which is drawn like a menu, always asks for one.
bool hasIconColumn(const QStyleOptionMenuItem &option, const QWidget *widget) {
  const bool isMenu = qobject_cast<const QMenu *>(widget) != nullptr;
  return option.maxIconWidth > 0 && (isMenu || !option.icon.isNull());
}

AccentFill colorsOf(const QStyleOptionMenuItem &option, const QWidget *widget) {
  const QPalette &palette = option.palette;
  const bool isSelected = option.state.testFlag(QStyle::State_Selected);
  if (!option.state.testFlag(QStyle::State_Enabled)) {
    return {Qt::transparent, fillColor(FillStyle::tertiary, palette)};
  }
  if (destroys(option, widget)) {
    const QColor red = systemColor(SystemColor::red, palette);
    return isSelected ? AccentFill::of(red)
                      : AccentFill{Qt::transparent,
                                   Contrast::readableOn(palette.color(QPalette::Window), red)};
  }
  return isSelected ? AccentFill::of(palette)
                    : AccentFill{Qt::transparent, fillColor(FillStyle::primary, palette)};
}

QIcon::Mode iconMode(const QStyleOptionMenuItem &option) {
  if (!option.state.testFlag(QStyle::State_Enabled)) {
    return QIcon::Disabled;
  }
  return option.state.testFlag(QStyle::State_Selected) ? QIcon::Selected : QIcon::Normal;
}

void drawMark(QPainter &painter, const QStyleOptionMenuItem &option, const QWidget *widget,
              QRect &text, const QColor &color) {
  const int side = option.fontMetrics.height();
  if (option.menuHasCheckableItems) {
    if (option.checked) {
      Symbol::draw(painter, QRect(text.left(), text.top(), side, text.height()), u"checkmark"_s,
                   arrowSide, color);
    }
    text.setLeft(text.left() + side);
  }
  if (hasIconColumn(option, widget)) {
    const QRect place(text.left(), text.center().y() - side / 2, side, side);
    option.icon.paint(&painter, place, Qt::AlignCenter, iconMode(option));
    text.setLeft(place.right() + 1 + iconSpacing);
  }
}

}  // namespace

void drawPanel(QPainter &painter, const QPalette &palette, const QRect &area) {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(fillColor(FillStyle::quaternary, palette), 1));
  painter.setBrush(palette.color(QPalette::Window));
  painter.drawRoundedRect(QRectF(area).adjusted(0.5, 0.5, -0.5, -0.5), panelRadius, panelRadius);
  painter.restore();
}

void drawItem(QPainter &painter, const QStyleOptionMenuItem &option, const QWidget *menu) {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  if (option.menuItemType == QStyleOptionMenuItem::Separator) {
    const QRectF line(option.rect.left() + sidePadding, option.rect.center().y(),
                      option.rect.width() - 2 * sidePadding, 1);
    painter.fillRect(PixelGrid::snappedLine(painter, line),
                     fillColor(FillStyle::quaternary, option.palette));
    painter.restore();
    return;
  }
  const AccentFill colors = colorsOf(option, menu);
  painter.setPen(Qt::NoPen);
  painter.setBrush(colors.ground);
  painter.drawRoundedRect(option.rect, highlightRadius, highlightRadius);

  QRect text = option.rect.adjusted(sidePadding, 0, -sidePadding, 0);
  drawMark(painter, option, menu, text, colors.text);
  painter.setFont(fontOf(option));
  painter.setPen(colors.text);
  const QString label = option.text.section(u'\t', 0, 0);
  const QString shortcut = option.text.section(u'\t', 1);
  painter.drawText(text, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextHideMnemonic, label);
  painter.drawText(text, Qt::AlignRight | Qt::AlignVCenter, shortcut);
  if (option.menuItemType == QStyleOptionMenuItem::SubMenu) {
    text.setLeft(text.right() - arrowSide);
    Symbol::draw(painter, text, u"chevron.right"_s, arrowSide, colors.text);
  }
  painter.restore();
}

QSize itemSize(const QStyleOptionMenuItem &option, const QSize &contents) {
  if (option.menuItemType == QStyleOptionMenuItem::Separator) {
    return {contents.width(), separatorHeight};
  }
  const QFontMetrics metrics(fontOf(option));
  const QString label = option.text.section(u'\t', 0, 0);
  const QString shortcut = option.text.section(u'\t', 1);
  int width = metrics.size(Qt::TextHideMnemonic, label).width() + 2 * sidePadding;
  width += option.menuHasCheckableItems ? metrics.height() : 0;
  width += option.maxIconWidth > 0 ? metrics.height() + iconSpacing : 0;
  if (!shortcut.isEmpty()) {
    width += metrics.horizontalAdvance(shortcut) + columnSpacing;
  }
  if (option.menuItemType == QStyleOptionMenuItem::SubMenu) {
    width += columnSpacing;
  }
  return {width, metrics.height() + 2 * linePadding};
}

QRegion panelRegion(const QRect &area) {
  return roundedRegion(area, panelRadius);
}

}  // namespace lanternix::MenuDrawing
