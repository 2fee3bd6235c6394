#pragma once

#include "Views/Settings/RecordListModel.h"

namespace lanternix {

class AppState;
struct PathGroup;

/// The groups in display order, each with the number of its items.
class GroupListModel : public RecordListModel {
  Q_OBJECT

 public:
  enum Role {
    CountRole = NextRole,  ///< qlonglong, the items of the group
  };

  explicit GroupListModel(AppState &appState, QObject *parent = nullptr);

  QVariant data(const QModelIndex &index, int role) const override;
  QHash<int, QByteArray> roleNames() const override;
  void moveRow(int row, int destination) override;

  /// Null where there is no row.
  const PathGroup *groupAt(qsizetype row) const;
  qsizetype itemCountAt(qsizetype row) const;

  /// How many items there are, in words.
  static QString countText(qsizetype count);

 protected:
  std::unique_ptr<QMimeData> payloadFor(const QUuid &id) const override;
  std::optional<QUuid> draggedId(const QMimeData &data) const override;

 private:
  void readGroups();

  AppState &m_appState;
};

}  // namespace lanternix
