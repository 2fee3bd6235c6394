#include "Views/Settings/ItemRowDelegate.h"

#include "Models/PathItem.h"
#include "Models/SystemColor.h"
#include "Views/Settings/ItemListModel.h"
#include "Views/Settings/RecordListView.h"
#include "Views/Style/Symbol.h"
#include "Views/Style/SystemColors.h"
#include "Views/Style/TextStyle.h"

#include <QtGui/QPainter>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace lanternix {

namespace {

constexpr double badgeSide = 28;
constexpr double badgeRadius = 6;
constexpr float badgeOpacity = 0.1F;
constexpr double spacing = 10;
constexpr double lineSpacing = 2;

void paintBadge(QPainter &painter, const QPalette &palette, const QRectF &area, ItemType type) {
  const QColor color = systemColor(colorOf(type), palette);
  painter.setPen(Qt::NoPen);
  painter.setBrush(withOpacity(color, badgeOpacity));
  painter.drawRoundedRect(area, badgeRadius, badgeRadius);
  Symbol::draw(painter, area, systemImage(type), Symbol::sideFor(textFont(TextStyle::subheadline)),
               color);
}

}  // namespace

ItemRowDelegate::ItemRowDelegate(const ItemListModel &model, RecordListView &view)
    : RecordRowDelegate(view), m_model(model) {}

double ItemRowDelegate::contentHeight() const {
  return std::max(badgeSide, linesHeight(lineSpacing));
}

void ItemRowDelegate::paintContent(QPainter &painter, const Inks &inks, const QRectF &area,
                                   qsizetype row) const {
  const PathItem *item = m_model.itemAt(row);
  if (item == nullptr) {
    return;
  }
  QRectF badge(area.left(), 0, badgeSide, badgeSide);
  badge.moveTop(std::round(area.center().y() - badgeSide / 2));
  paintBadge(painter, inks.palette, badge, item->type);
  QRectF text = area;
  text.setLeft(badge.right() + spacing);
  if (!item->isValid()) {
    const double side = Symbol::sideFor(textFont(TextStyle::caption));
    Symbol::draw(painter, QRectF(area.right() - side, area.top(), side, area.height()),
                 u"exclamationmark.triangle.fill"_s, side,
                 systemColor(SystemColor::yellow, inks.palette));
    text.setRight(area.right() - side - spacing);
  }
  paintLines(painter, inks, text,
             {.name = item->name,
              .caption = item->path,
              .captionElision = Qt::ElideMiddle,
              .spacing = lineSpacing});
}

}  // namespace lanternix
