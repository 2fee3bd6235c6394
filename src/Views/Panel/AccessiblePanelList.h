#pragma once

#include "Views/Panel/AccessiblePanelRow.h"

#include <QtCore/QHash>
#include <QtCore/QList>
#include <QtWidgets/QAccessibleWidget>

#include <optional>

namespace lanternix {

class PanelListView;

/// The panel's list as a screen reader meets it: a tree with a branch for the recently opened items
/// and one for each group, and the items below those. A row's interface is made when somebody asks
/// for it; without a reader there is none. When the rows change it goes along with what it stands
/// for, so that a reader on its way to an item finds it after one more letter too, and ends with
/// it.
///
/// A tree rather than a list, because readers speak of a tree's branches whether they are unfolded,
/// name the branch when the selection enters it, and count an item among its own ("2 of 5"), for
/// which they have to ask for no more than one group's items.
class AccessiblePanelList final : public QAccessibleWidget {
 public:
  explicit AccessiblePanelList(PanelListView &view);
  ~AccessiblePanelList() override;
  Q_DISABLE_COPY_MOVE(AccessiblePanelList)

  PanelListView &view() const { return m_view; }
  /// The interface of one of the model's rows, which is not a divider. Qt's cache owns it.
  QAccessibleInterface *interfaceOfRow(qsizetype row) const;

  /// The header above a row, or -1 for a header.
  qsizetype headerOf(qsizetype row) const;
  /// How many rows belong to a header; 0 for any other row.
  qsizetype rowsBelow(qsizetype header) const;

  int childCount() const override;
  QAccessibleInterface *child(int index) const override;
  /// The row at \p x, \p y on the screen, header or not.
  QAccessibleInterface *childAt(int x, int y) const override;
  int indexOfChild(const QAccessibleInterface *child) const override;

 private:
  /// The rows that are headers, from the top.
  const QList<qsizetype> &headers() const;
  AccessiblePanelRow::Identity identityOf(qsizetype row) const;
  void followRows();

  PanelListView &m_view;
  QMetaObject::Connection m_aboutToResetConnection;
  QMetaObject::Connection m_resetConnection;
  mutable std::optional<QList<qsizetype>> m_headers;
  /// By row, those that were asked for; ids, because Qt's cache may end before the list does.
  mutable QHash<qsizetype, QAccessible::Id> m_interfaces;
};

}  // namespace lanternix
