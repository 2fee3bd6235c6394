#include "Views/Settings/ItemListModel.h"

#include "App/AppState.h"
#include "Views/Settings/DragPayload.h"
#include "Views/Style/SpokenText.h"

#include <QtCore/QMimeData>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace lanternix {

ItemListModel::ItemListModel(AppState &appState, QObject *parent)
    : RecordListModel(parent), m_appState(appState) {
  // What a search shows in a group may follow from the names of groups.
  connect(&appState, &AppState::groupsChanged, this, &ItemListModel::readItems);
  connect(&appState, &AppState::itemsChanged, this, &ItemListModel::readItems);
  connect(&appState, &AppState::searchQueryChanged, this, &ItemListModel::readItems);
}

void ItemListModel::setGroupId(const std::optional<QUuid> &id) {
  m_groupId = id;
  readItems();
}

void ItemListModel::readItems() {
  QList<Row> rows;
  if (m_groupId.has_value()) {
    const std::span<const qsizetype> positions = m_appState.itemPositionsForGroup(*m_groupId);
    rows.reserve(std::ssize(positions));
    for (const qsizetype position : positions) {
      rows.append({m_appState.items()[position].id, position});
    }
  }
  setRows(std::move(rows));
}

const PathItem *ItemListModel::itemAt(qsizetype row) const {
  return recordAt(row, m_appState.items());
}

QVariant ItemListModel::data(const QModelIndex &index, int role) const {
  if (!checkIndex(index, CheckIndexOption::IndexIsValid)) {
    return {};
  }
  const PathItem *item = itemAt(index.row());
  if (item == nullptr) {
    return {};
  }
  switch (role) {
    case Qt::DisplayRole:
      return item->name;
    case Qt::AccessibleTextRole:
      return SpokenText::of(item->name);
    case Qt::AccessibleDescriptionRole:
      return SpokenText::describing(*item, item->path);
    case PathRole:
      return item->path;
    case TypeRole:
      return displayName(item->type);
    default:
      return RecordListModel::data(index, role);
  }
}

QHash<int, QByteArray> ItemListModel::roleNames() const {
  QHash<int, QByteArray> names = RecordListModel::roleNames();
  names.insert(PathRole, "path");
  names.insert(TypeRole, "type");
  return names;
}

std::unique_ptr<QMimeData> ItemListModel::payloadFor(const QUuid &id) const {
  return DragPayload::forItem(id);
}

std::optional<QUuid> ItemListModel::draggedId(const QMimeData &data) const {
  return DragPayload::itemId(data);
}

QList<qsizetype> ItemListModel::positionsOfWholeGroup() const {
  const QList<PathItem> &items = m_appState.items();
  QList<qsizetype> positions;
  for (qsizetype position = 0; position < items.size(); ++position) {
    if (items[position].groupId == m_groupId) {
      positions.append(position);
    }
  }
  std::ranges::stable_sort(positions, {}, [&items](qsizetype at) { return items[at].order; });
  return positions;
}

void ItemListModel::moveRow(int row, int destination) {
  if (!m_groupId.has_value() || itemAt(row) == nullptr) {
    return;
  }
  qsizetype from = row;
  qsizetype to = destination;
  if (!m_appState.searchQuery().isEmpty()) {
    // The store counts among all items of the group; while the panel searches, some have no row.
    const QList<qsizetype> all = positionsOfWholeGroup();
    from = all.indexOf(rows()[row].position);
    to = destination < rowCount() ? all.indexOf(rows()[destination].position)
                                  : all.indexOf(rows().back().position) + 1;
  }
  m_appState.moveItems({from}, to, QUuid(*m_groupId));
}

}  // namespace lanternix
