#include "Views/Settings/GroupRowDelegate.h"

#include "Models/PathGroup.h"
#include "Views/Settings/GroupListModel.h"
#include "Views/Settings/RecordListView.h"
#include "Views/Style/Symbol.h"
#include "Views/Style/SystemColors.h"
#include "Views/Style/TextStyle.h"

namespace lanternix {

namespace {

constexpr double iconWidth = 22;
constexpr double spacing = 10;
constexpr double lineSpacing = 1;

}  // namespace

GroupRowDelegate::GroupRowDelegate(const GroupListModel &model, RecordListView &view)
    : RecordRowDelegate(view), m_model(model) {}

double GroupRowDelegate::contentHeight() const {
  return linesHeight(lineSpacing);
}

void GroupRowDelegate::paintContent(QPainter &painter, const Inks &inks, const QRectF &area,
                                    qsizetype row) const {
  const PathGroup *group = m_model.groupAt(row);
  if (group == nullptr) {
    return;
  }
  Symbol::draw(painter, QRectF(area.left(), area.top(), iconWidth, area.height()), group->iconName,
               Symbol::sideFor(textFont(TextStyle::body)),
               systemColor(group->color(), inks.palette));
  paintLines(painter, inks, area.adjusted(iconWidth + spacing, 0, 0, 0),
             {.name = group->name,
              .caption = GroupListModel::countText(m_model.itemCountAt(row)),
              .spacing = lineSpacing});
}

}  // namespace lanternix
