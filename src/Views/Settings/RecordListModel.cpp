#include "Views/Settings/RecordListModel.h"

#include <QtCore/QMimeData>

#include <algorithm>
#include <utility>

namespace lanternix {

int RecordListModel::rowCount(const QModelIndex &parent) const {
  return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

QVariant RecordListModel::data(const QModelIndex &index, int role) const {
  if (role != IdRole || !checkIndex(index, CheckIndexOption::IndexIsValid)) {
    return {};
  }
  return m_rows[index.row()].id;
}

QHash<int, QByteArray> RecordListModel::roleNames() const {
  QHash<int, QByteArray> names = QAbstractListModel::roleNames();
  names.insert(IdRole, "id");
  return names;
}

Qt::ItemFlags RecordListModel::flags(const QModelIndex &index) const {
  const Qt::ItemFlags flags = QAbstractListModel::flags(index);
  return index.isValid() ? flags | Qt::ItemIsDragEnabled : flags;
}

Qt::DropActions RecordListModel::supportedDragActions() const {
  return Qt::CopyAction | Qt::MoveAction;
}

QMimeData *RecordListModel::mimeData(const QModelIndexList &indexes) const {
  const std::optional<QUuid> id = indexes.isEmpty() ? std::nullopt : idAt(indexes.front().row());
  return id.has_value() ? payloadFor(*id).release() : nullptr;
}

int RecordListModel::draggedRow(const QMimeData &data) const {
  const std::optional<QUuid> id = draggedId(data);
  return id.has_value() ? rowOf(*id) : -1;
}

std::optional<QUuid> RecordListModel::idAt(qsizetype row) const {
  return row >= 0 && row < m_rows.size() ? std::optional(m_rows[row].id) : std::nullopt;
}

int RecordListModel::rowOf(const QUuid &id) const {
  const auto row = std::ranges::find(m_rows, id, &Row::id);
  return row == m_rows.end() ? -1 : static_cast<int>(row - m_rows.begin());
}

void RecordListModel::setRows(QList<Row> rows) {
  if (std::ranges::equal(rows, std::as_const(m_rows), {}, &Row::id, &Row::id)) {
    m_rows = std::move(rows);
    announceContent();
    return;
  }
  beginResetModel();
  m_rows = std::move(rows);
  endResetModel();
}

void RecordListModel::announceContent() {
  if (!m_rows.isEmpty()) {
    Q_EMIT dataChanged(index(0), index(rowCount() - 1));
  }
}

}  // namespace lanternix
