#pragma once

#include "Views/Panel/PanelRow.h"

#include <QtCore/QUuid>
#include <QtGui/QAccessible>

namespace lanternix {

class AccessiblePanelList;
class PanelListModel;
class PanelListView;

/// One row of the panel's list for a screen reader. An item is heard by its name, then as
/// "Directory, not found, ~/Projects"; a group by its name and "3 items", with its state. The rows
/// of a group are the children of its header. An item opens and is selected, a group folds and
/// unfolds by an action. Follows its item or group to
/// wherever the list shows it, and ends with it.
class AccessiblePanelRow final : public QAccessibleInterface, public QAccessibleActionInterface {
 public:
  /// What a row stands for, whatever its place.
  struct Identity {
    PanelRow::Kind kind;
    QUuid id;       // of the item or the group
    bool isRecent;  // among the recently opened items, where an item may stand a second time

    friend bool operator==(const Identity &, const Identity &) = default;
    friend size_t qHash(const Identity &identity, size_t seed = 0) noexcept {
      return qHashMulti(seed, static_cast<int>(identity.kind), identity.id, identity.isRecent);
    }
  };

  AccessiblePanelRow(const AccessiblePanelList &list, qsizetype row, const Identity &identity);

  const Identity &identity() const { return m_identity; }

  /// The place in the list's model.
  qsizetype row() const { return m_row; }
  void setRow(qsizetype row) { m_row = row; }

  bool isValid() const override;
  QObject *object() const override { return nullptr; }
  QWindow *window() const override;
  QAccessibleInterface *parent() const override;
  QAccessibleInterface *child(int index) const override;
  QAccessibleInterface *childAt(int x, int y) const override;
  int childCount() const override;
  int indexOfChild(const QAccessibleInterface *child) const override;
  void *interface_cast(QAccessible::InterfaceType type) override;

  QString text(QAccessible::Text kind) const override;
  void setText(QAccessible::Text /*kind*/, const QString & /*text*/) override {}
  /// On the screen; it may lie outside the list's.
  QRect rect() const override;
  QAccessible::Role role() const override;
  QAccessible::State state() const override;

  QStringList actionNames() const override;
  /// Done when the caller has returned, because the row may not outlive it.
  void doAction(const QString &actionName) override;
  QStringList keyBindingsForAction(const QString &actionName) const override;

 private:
  PanelListView &view() const;
  const PanelListModel &model() const;
  const PanelRow &panelRow() const;
  QString name() const;
  QString description() const;
  void addItemState(QAccessible::State &state) const;
  void addGroupState(QAccessible::State &state) const;

  const AccessiblePanelList &m_list;
  qsizetype m_row;
  Identity m_identity;
};

}  // namespace lanternix
