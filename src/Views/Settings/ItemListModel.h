#pragma once

#include "Views/Settings/RecordListModel.h"

namespace lanternix {

class AppState;
struct PathItem;

/// The items of one group in display order.
class ItemListModel : public RecordListModel {
  Q_OBJECT

 public:
  enum Role {
    PathRole = NextRole,  ///< QString
    TypeRole,             ///< QString, the name of the item's type
  };

  explicit ItemListModel(AppState &appState, QObject *parent = nullptr);

  QVariant data(const QModelIndex &index, int role) const override;
  QHash<int, QByteArray> roleNames() const override;
  void moveRow(int row, int destination) override;

  /// None: no rows.
  const std::optional<QUuid> &groupId() const { return m_groupId; }
  /// Shows the rows of another group, as a list that starts anew.
  void setGroupId(const std::optional<QUuid> &id);

  /// Null where there is no row.
  const PathItem *itemAt(qsizetype row) const;

 protected:
  std::unique_ptr<QMimeData> payloadFor(const QUuid &id) const override;
  std::optional<QUuid> draggedId(const QMimeData &data) const override;

 private:
  void readItems();
  QList<qsizetype> positionsOfWholeGroup() const;

  AppState &m_appState;
  std::optional<QUuid> m_groupId;
};

}  // namespace lanternix
