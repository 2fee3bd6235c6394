#pragma once

#include <QtCore/QAbstractListModel>
#include <QtCore/QList>
#include <QtCore/QUuid>

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

  /// The id of a row; none where there is no row.
  std::optional<QUuid> idAt(qsizetype row) const;
  /// The first row of the group or item with this id; -1 when it is not in the list.
  int rowOf(const QUuid &id) const;

  /// The row that is dragged with \p data; -1 when it is none of this list.
  virtual int draggedRow(const QMimeData &data) const = 0;
  /// Moves a row in the store, before the row that is at \p destination now; the number of rows
  /// means the end.
  virtual void moveRow(int row, int destination) = 0;

 protected:
  struct Row {
    QUuid id;
    qsizetype position = 0;  ///< in the store's list
  };

  const QList<Row> &rows() const { return m_rows; }
  /// Takes over the rows as the store has them now. As long as they stand for the same, only their
  /// content counts as changed.
  void setRows(QList<Row> rows);
  /// Says that any row may look different now.
  void announceContent();

 private:
  QList<Row> m_rows;
};

}  // namespace lanternix
