#include "Views/Panel/PanelListModel.h"

#include "App/AppState.h"

#include <QtCore/QUuid>

using namespace Qt::StringLiterals;

namespace lanternix {

PanelListModel::PanelListModel(AppState &appState, QObject *parent)
    : QAbstractListModel(parent), m_appState(appState) {
  connect(&appState, &AppState::groupsChanged, this, &PanelListModel::rebuild);
  connect(&appState, &AppState::itemsChanged, this, &PanelListModel::rebuild);
  connect(&appState, &AppState::searchQueryChanged, this, &PanelListModel::rebuild);
  connect(&appState, &AppState::showRecentItemsChanged, this, &PanelListModel::rebuild);
  rebuild();
}

int PanelListModel::rowCount(const QModelIndex &parent) const {
  return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

const PathItem *PanelListModel::itemAt(qsizetype row) const {
  if (row < 0 || row >= m_rows.size() || m_rows[row].kind != PanelRow::Kind::item) {
    return nullptr;
  }
  return &m_appState.items()[m_rows[row].index];
}

const PathGroup *PanelListModel::groupAt(qsizetype row) const {
  if (row < 0 || row >= m_rows.size() || m_rows[row].index < 0 ||
      m_rows[row].kind == PanelRow::Kind::item) {
    return nullptr;
  }
  return &m_appState.groups()[m_rows[row].index];
}

qsizetype PanelListModel::rowOfItem(const QUuid &id) const {
  for (qsizetype row = 0; row < m_rows.size(); ++row) {
    const PathItem *item = itemAt(row);
    if (item != nullptr && item->id == id) {
      return row;
    }
  }
  return -1;
}

QVariant PanelListModel::data(const QModelIndex &index, int role) const {
  if (!checkIndex(index, CheckIndexOption::IndexIsValid)) {
    return {};
  }
  const PanelRow &row = m_rows[index.row()];
  const PathItem *item = itemAt(index.row());
  const PathGroup *group = groupAt(index.row());
  switch (role) {
    case Qt::DisplayRole:
      return title(row);
    case KindRole:
      return static_cast<int>(row.kind);
    case IdRole:
      return item != nullptr ? item->id : group != nullptr ? group->id : QUuid();
    case CountRole:
      return group == nullptr ? QVariant() : QVariant(m_appState.itemCount(group->id));
    case ExpandedRole:
      return group == nullptr ? QVariant() : QVariant(group->isExpanded);
    default:
      return {};
  }
}

QHash<int, QByteArray> PanelListModel::roleNames() const {
  QHash<int, QByteArray> names = QAbstractListModel::roleNames();
  names.insert(KindRole, "kind");
  names.insert(IdRole, "id");
  names.insert(CountRole, "count");
  names.insert(ExpandedRole, "expanded");
  return names;
}

QString PanelListModel::title(const PanelRow &row) const {
  switch (row.kind) {
    case PanelRow::Kind::recentHeader:
      return u"Recently Opened"_s;
    case PanelRow::Kind::item:
      return m_appState.items()[row.index].name;
    case PanelRow::Kind::groupHeader:
      return m_appState.groups()[row.index].name;
    case PanelRow::Kind::emptyGroup:
      return u"No items in this group"_s;
    case PanelRow::Kind::divider:
      break;
  }
  return {};
}

void PanelListModel::rebuild() {
  beginResetModel();
  m_rows = recentRows() + groupRows();
  endResetModel();
}

QList<PanelRow> PanelListModel::recentRows() const {
  if (!m_appState.showRecentItems() || !m_appState.searchQuery().isEmpty()) {
    return {};
  }
  const QList<qsizetype> indexes = m_appState.recentItemIndexes();
  if (indexes.isEmpty()) {
    return {};
  }
  QList<PanelRow> rows{{PanelRow::Kind::recentHeader}};
  for (const qsizetype index : indexes) {
    rows.append({PanelRow::Kind::item, index});
  }
  rows.append({PanelRow::Kind::divider});
  return rows;
}

QList<PanelRow> PanelListModel::groupRows() const {
  QList<PanelRow> rows;
  for (const qsizetype groupIndex : m_appState.filteredGroupIndexes()) {
    const PathGroup &group = m_appState.groups()[groupIndex];
    rows.append({PanelRow::Kind::groupHeader, groupIndex});
    if (!group.isExpanded) {
      continue;
    }
    const QList<qsizetype> itemIndexes = m_appState.itemIndexesForGroup(group.id);
    if (itemIndexes.isEmpty()) {
      rows.append({PanelRow::Kind::emptyGroup, groupIndex, false});
    }
    for (const qsizetype itemIndex : itemIndexes) {
      rows.append({PanelRow::Kind::item, itemIndex, false});
    }
  }
  return rows;
}

}  // namespace lanternix
