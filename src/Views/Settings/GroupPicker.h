#pragma once

#include <QtCore/QUuid>
#include <QtWidgets/QComboBox>

#include <optional>

namespace lanternix {

class AppState;

/// A choice of one of the groups, in display order, each with its symbol. Follows the store.
class GroupPicker : public QComboBox {
  Q_OBJECT

 public:
  /// Shows nothing when \p selected is none or the id of no group.
  GroupPicker(AppState &appState, const std::optional<QUuid> &selected, QWidget *parent = nullptr);

  /// None until there is one. An id that was no group's from the beginning is kept; one whose group
  /// went meanwhile is not.
  const std::optional<QUuid> &selectedGroupId() const { return m_selectedGroupId; }

 Q_SIGNALS:
  /// Also when the selected group has gone, which leaves none selected.
  void selectedGroupIdChanged();

 private:
  void readGroups();
  void readIndex(int index);

  AppState &m_appState;
  std::optional<QUuid> m_selectedGroupId;
};

}  // namespace lanternix
