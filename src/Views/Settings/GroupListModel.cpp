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
  // Between a change of the store and the news of it a row may point past the end.
  const qsizetype position = row >= 0 && row < rows().size() ? rows()[row].position : -1;
  return position >= 0 && position < m_appState.groups().size() ? &m_appState.groups()[position]
                                                                : nullptr;
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

QMimeData *GroupListModel::mimeData(const QModelIndexList &indexes) const {
  const std::optional<QUuid> id = indexes.isEmpty() ? std::nullopt : idAt(indexes.front().row());
  return id.has_value() ? DragPayload::forGroup(*id).release() : nullptr;
}

int GroupListModel::draggedRow(const QMimeData &data) const {
  const std::optional<QUuid> id = DragPayload::groupId(data);
  return id.has_value() ? rowOf(*id) : -1;
}

void GroupListModel::moveRow(int row, int destination) {
  m_appState.moveGroup({row}, destination);
}

}  // namespace lanternix
