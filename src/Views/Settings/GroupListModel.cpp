#include "Views/Settings/GroupListModel.h"

#include "App/AppState.h"
#include "Views/Settings/DragPayload.h"
#include "Views/Style/SpokenText.h"

#include <QtCore/QMimeData>

#include <algorithm>
#include <iterator>
#include <utility>

using namespace Qt::StringLiterals;

namespace lanternix {

GroupListModel::GroupListModel(AppState &appState, QObject *parent)
    : RecordListModel(parent), m_appState(appState) {
  connect(&appState, &AppState::groupsChanged, this, &GroupListModel::readGroups);
  connect(&appState, &AppState::itemsChanged, this, &GroupListModel::announceContent);
  connect(&appState, &AppState::searchQueryChanged, this, &GroupListModel::announceContent);
  readGroups();
}

void GroupListModel::readGroups() {
  const QList<PathGroup> &groups = m_appState.groups();
  QList<Row> rows;
  rows.reserve(groups.size());
  for (qsizetype position = 0; position < groups.size(); ++position) {
    rows.append({groups[position].id, position});
  }
  std::ranges::stable_sort(rows, {},
                           [&groups](const Row &row) { return groups[row.position].order; });
  setRows(std::move(rows));
}

const PathGroup *GroupListModel::groupAt(qsizetype row) const {
  return recordAt(row, m_appState.groups());
}

qsizetype GroupListModel::itemCountAt(qsizetype row) const {
  const PathGroup *group = groupAt(row);
  return group == nullptr ? 0 : std::ssize(m_appState.itemPositionsForGroup(group->id));
}

QString GroupListModel::countText(qsizetype count) {
  return u"%1 items"_s.arg(count);
}

QVariant GroupListModel::data(const QModelIndex &index, int role) const {
  if (!checkIndex(index, CheckIndexOption::IndexIsValid)) {
    return {};
  }
  const PathGroup *group = groupAt(index.row());
  switch (role) {
    case Qt::DisplayRole:
      return group != nullptr ? group->name : QString();
    case Qt::AccessibleTextRole:
      return group != nullptr ? SpokenText::of(group->name) : QString();
    case Qt::AccessibleDescriptionRole:
      return countText(itemCountAt(index.row()));
    case CountRole:
      return QVariant::fromValue<qlonglong>(itemCountAt(index.row()));
    default:
      return RecordListModel::data(index, role);
  }
}

QHash<int, QByteArray> GroupListModel::roleNames() const {
  QHash<int, QByteArray> names = RecordListModel::roleNames();
  names.insert(CountRole, "count");
  return names;
}

std::unique_ptr<QMimeData> GroupListModel::payloadFor(const QUuid &id) const {
  return DragPayload::forGroup(id);
}

std::optional<QUuid> GroupListModel::draggedId(const QMimeData &data) const {
  return DragPayload::groupId(data);
}

void GroupListModel::moveRow(int row, int destination) {
  m_appState.moveGroup({row}, destination);
}

}  // namespace lanternix
