#pragma once

#include <QtCore/QHash>
#include <QtCore/QList>
#include <QtWidgets/QAccessibleWidget>

#include <optional>

namespace lanternix {

class PanelListView;

/// The panel's list as a screen reader meets it: a tree whose children are the rows that say
/// something, that is all but the dividers. A row's interface is made when somebody asks for it and
/// ends when the list's rows change; without a reader there is none.
///
/// A tree rather than a list, because readers speak of a tree's items whether they are unfolded.
/// Like the trees of Qt's own views it is flat: a group's items follow its header.
class AccessiblePanelList final : public QAccessibleWidget {
 public:
  explicit AccessiblePanelList(PanelListView &view);
  ~AccessiblePanelList() override;
  Q_DISABLE_COPY_MOVE(AccessiblePanelList)

  PanelListView &view() const { return m_view; }
  /// The interface of one of the model's rows, which is not a divider. Qt's cache owns it.
  QAccessibleInterface *interfaceOfRow(qsizetype row) const;

  int childCount() const override;
  QAccessibleInterface *child(int index) const override;
  /// \p x and \p y on the screen.
  QAccessibleInterface *childAt(int x, int y) const override;
  int indexOfChild(const QAccessibleInterface *child) const override;

 private:
  /// The model's row of each child.
  const QList<qsizetype> &childRows() const;
  void dropRows();

  PanelListView &m_view;
  QMetaObject::Connection m_resetConnection;
  mutable std::optional<QList<qsizetype>> m_childRows;
  mutable QHash<qsizetype, QAccessible::Id> m_interfaces;  // by row, of those asked for
};

}  // namespace lanternix
