#pragma once

#include <QtCore/QAbstractListModel>
#include <QtCore/QList>
#include <QtCore/QUuid>

#include <memory>
#include <optional>

class QMimeData;

namespace lanternix {

/// Rows that stand for groups or items of the store, in the order in which the user sees them and
/// may drag them. Rows only point into the store.
class RecordListModel : public QAbstractListModel {
  Q_OBJECT

 public:
  enum Role {
    IdRole = Qt::UserRole,  ///< QUuid of the row's group or item
    NextRole,               ///< the first for models that derive from this one
  };

  using QAbstractListModel::QAbstractListModel;

  int rowCount(const QModelIndex &parent = {}) const override;
  QVariant data(const QModelIndex &index, int role) const override;
  QHash<int, QByteArray> roleNames() const override;
  Qt::ItemFlags flags(const QModelIndex &index) const override;
  Qt::DropActions supportedDragActions() const override;
  QMimeData *mimeData(const QModelIndexList &indexes) const override;

  /// The id of a row; none where there is no row.
  std::optional<QUuid> idAt(qsizetype row) const;
  /// The first row of the group or item with this id; -1 when it is not in the list.
  int rowOf(const QUuid &id) const;

  /// The row that is dragged with \p data; -1 when it is none of this list.
  int draggedRow(const QMimeData &data) const;
  /// Moves a row in the store, before the row that is at \p destination now; the number of rows
  /// means the end.
  virtual void moveRow(int row, int destination) = 0;

 protected:
  /// What is dragged with the row of this id, and the id that \p data drag; none when they drag no
  /// row of this kind.
  virtual std::unique_ptr<QMimeData> payloadFor(const QUuid &id) const = 0;
  virtual std::optional<QUuid> draggedId(const QMimeData &data) const = 0;

  struct Row {
    QUuid id;
    qsizetype position = 0;  ///< in the store's list
  };

  const QList<Row> &rows() const { return m_rows; }
  /// Takes over the rows as the store has them now. As long as they stand for the same, only their
  /// content counts as changed.
  void setRows(QList<Row> rows);
  /// The one of the store's \p records that a row stands for; null where there is none. Between a
  /// change of the store and the news of it a row may point past the end.
  template <typename Record>
  const Record *recordAt(qsizetype row, const QList<Record> &records) const {
    const qsizetype position = row >= 0 && row < m_rows.size() ? m_rows[row].position : -1;
    return position >= 0 && position < records.size() ? &records[position] : nullptr;
  }
  /// Says that any row may look different now.
  void announceContent();

 private:
  QList<Row> m_rows;
};

}  // namespace lanternix
