#include "Views/Panel/PanelListModel.h"

#include "App/AppState.h"

#include <QtCore/QUuid>

using namespace Qt::StringLiterals;

namespace lanternix {

namespace {

// Between a change of the store and the news of it a row may point past the end.
template <typename Element>
const Element *elementAt(const QList<Element> &list, qsizetype position) {
  return position >= 0 && position < list.size() ? &list[position] : nullptr;
}

// What a row says that shows no item and no group.
QString fixedText(PanelRow::Kind kind) {
  switch (kind) {
    case PanelRow::Kind::recentHeader:
      return u"Recently Opened"_s;
    case PanelRow::Kind::emptyGroup:
      return u"No items in this group"_s;
    default:
      return {};
  }
}

}  // namespace

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
  return elementAt(m_appState.items(), m_rows[row].position);
}

const PathGroup *PanelListModel::groupAt(qsizetype row) const {
  if (row < 0 || row >= m_rows.size() || m_rows[row].kind == PanelRow::Kind::item) {
    return nullptr;
  }
  return elementAt(m_appState.groups(), m_rows[row].position);
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
      return item != nullptr                                               ? item->name
             : row.kind == PanelRow::Kind::groupHeader && group != nullptr ? group->name
                                                                           : fixedText(row.kind);
    case KindRole:
      return static_cast<int>(row.kind);
    case IdRole:
      return identityAt(index.row())->second;
    case CountRole:
      return group == nullptr ? QVariant()
                              : QVariant::fromValue<qlonglong>(
                                    std::ssize(m_appState.itemPositionsForGroup(group->id)));
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

void PanelListModel::setLingering(const QUuid &group, bool lingers) {
  if (lingers) {
    m_lingeringGroups.insert(group);
    return;
  }
  const PathGroup *unfolded = m_appState.groupWithId(group);
  const bool rowsStay = unfolded != nullptr && unfolded->isExpanded;
  if (m_lingeringGroups.remove(group) && !rowsStay) {
    rebuild();
  }
}

std::optional<PanelListModel::Identity> PanelListModel::identityAt(qsizetype row) const {
  if (row < 0 || row >= m_rows.size()) {
    return std::nullopt;
  }
  const PathItem *item = itemAt(row);
  const PathGroup *group = groupAt(row);
  return Identity(m_rows[row].kind, item != nullptr    ? item->id
                                    : group != nullptr ? group->id
                                                       : QUuid());
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
  const std::span<const qsizetype> positions = m_appState.recentItemPositions();
  if (positions.empty()) {
    return {};
  }
  QList<PanelRow> rows{{PanelRow::Kind::recentHeader}};
  for (const qsizetype position : positions) {
    rows.append({PanelRow::Kind::item, position});
  }
  rows.append({PanelRow::Kind::divider});
  return rows;
}

QList<PanelRow> PanelListModel::groupRows() const {
  QList<PanelRow> rows;
  for (const qsizetype groupPosition : m_appState.filteredGroupPositions()) {
    const PathGroup &group = m_appState.groups()[groupPosition];
    rows.append({PanelRow::Kind::groupHeader, groupPosition});
    if (!group.isExpanded && !m_lingeringGroups.contains(group.id)) {
      continue;
    }
    const std::span<const qsizetype> itemPositions = m_appState.itemPositionsForGroup(group.id);
    if (itemPositions.empty()) {
      rows.append({PanelRow::Kind::emptyGroup, groupPosition, false});
    }
    for (const qsizetype itemPosition : itemPositions) {
      rows.append({PanelRow::Kind::item, itemPosition, false});
    }
  }
  return rows;
}

}  // namespace lanternix
