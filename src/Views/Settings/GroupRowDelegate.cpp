#include "Views/Settings/GroupRowDelegate.h"

#include "Models/PathGroup.h"
#include "Views/Settings/GroupListModel.h"
#include "Views/Settings/RecordListView.h"
#include "Views/Style/Symbol.h"
#include "Views/Style/SystemColors.h"
#include "Views/Style/TextStyle.h"

namespace lanternix {

GroupRowDelegate::GroupRowDelegate(const GroupListModel &model, RecordListView &view)
    : RecordRowDelegate({.pictureWidth = 22, .lineSpacing = 1}, view), m_model(model) {}

std::optional<RecordRowDelegate::Lines> GroupRowDelegate::linesOf(qsizetype row) const {
  const PathGroup *group = m_model.groupAt(row);
  if (group == nullptr) {
    return {};
  }
  return Lines{.name = group->name, .caption = GroupListModel::countText(m_model.itemCountAt(row))};
}

void GroupRowDelegate::paintPicture(QPainter &painter, const QPalette &palette, const QRectF &area,
                                    qsizetype row) const {
  const PathGroup &group = *m_model.groupAt(row);
  Symbol::draw(painter, area, group.iconName, Symbol::sideFor(textFont(TextStyle::body)),
               systemColor(group.color(), palette));
}

}  // namespace lanternix
