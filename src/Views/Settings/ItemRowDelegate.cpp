#include "Views/Settings/ItemRowDelegate.h"

#include "Models/PathItem.h"
#include "Views/Settings/ItemListModel.h"
#include "Views/Settings/RecordListView.h"
#include "Views/Style/Symbol.h"
#include "Views/Style/SystemColors.h"
#include "Views/Style/TextStyle.h"

#include <QtGui/QPainter>

namespace lanternix {

namespace {

constexpr double badgeSide = 28;
constexpr double badgeRadius = 6;
constexpr float badgeOpacity = 0.1F;

}  // namespace

ItemRowDelegate::ItemRowDelegate(const ItemListModel &model, RecordListView &view)
    : RecordRowDelegate({.pictureWidth = badgeSide, .pictureHeight = badgeSide, .lineSpacing = 2},
                        view),
      m_model(model) {}

std::optional<RecordRowDelegate::Lines> ItemRowDelegate::linesOf(qsizetype row) const {
  const PathItem *item = m_model.itemAt(row);
  if (item == nullptr) {
    return {};
  }
  return Lines{.name = item->name,
               .caption = item->path,
               .captionElision = Qt::ElideMiddle,
               .hasWarning = !item->isValid()};
}

void ItemRowDelegate::paintPicture(QPainter &painter, const QPalette &palette, const QRectF &area,
                                   qsizetype row) const {
  const ItemType type = m_model.itemAt(row)->type;
  const QColor color = systemColor(colorOf(type), palette);
  painter.setPen(Qt::NoPen);
  painter.setBrush(withOpacity(color, badgeOpacity));
  painter.drawRoundedRect(area, badgeRadius, badgeRadius);
  Symbol::draw(painter, area, systemImage(type), Symbol::sideFor(textFont(TextStyle::subheadline)),
               color);
}

}  // namespace lanternix
