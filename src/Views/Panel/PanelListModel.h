#pragma once

#include "Views/Panel/PanelRow.h"

#include <QtCore/QAbstractListModel>
#include <QtCore/QList>
#include <QtCore/QSet>
#include <QtCore/QUuid>

#include <optional>

namespace lanternix {

class AppState;
struct PathGroup;
struct PathItem;

/// The rows of the panel's list: the recently opened items while nothing is searched, then each
/// group the panel shows with, when it is expanded, its items. Rows only point into the store.
class PanelListModel : public QAbstractListModel {
  Q_OBJECT

 public:
  enum Role {
    KindRole = Qt::UserRole,  ///< int, a PanelRow::Kind
    IdRole,                   ///< QUuid of the row's item or group
    CountRole,                ///< qlonglong, the items the panel shows in the row's group
    ExpandedRole,             ///< bool, whether the row's group is unfolded
  };

  explicit PanelListModel(AppState &appState, QObject *parent = nullptr);

  int rowCount(const QModelIndex &parent = {}) const override;
  QVariant data(const QModelIndex &index, int role) const override;
  QHash<int, QByteArray> roleNames() const override;

  const QList<PanelRow> &rows() const { return m_rows; }

  /// Whether the rows of \p group stay in the list while it is folded, so that they can be seen
  /// going away.
  void setLingering(const QUuid &group, bool lingers);

  /// What a row stands for, which stays the same when rows come and go around it.
  using Identity = std::pair<PanelRow::Kind, QUuid>;
  /// None outside the list.
  std::optional<Identity> identityAt(qsizetype row) const;

  /// The item of an item row, the group of a group's row; null for rows of another kind.
  const PathItem *itemAt(qsizetype row) const;
  const PathGroup *groupAt(qsizetype row) const;

  /// The first row that shows the item with this id; -1 when none does.
  qsizetype rowOfItem(const QUuid &id) const;

 private:
  void rebuild();
  QList<PanelRow> recentRows() const;
  QList<PanelRow> groupRows() const;

  AppState &m_appState;
  QList<PanelRow> m_rows;
  QSet<QUuid> m_lingeringGroups;
};

}  // namespace lanternix
