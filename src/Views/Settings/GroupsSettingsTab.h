#pragma once

#include <QtCore/QUuid>
#include <QtWidgets/QWidget>

#include <optional>

namespace lanternix {

class AppState;
class FileChooser;
class GroupDetailView;
class GroupSidebarView;
class ListPane;

/// The page of the settings where groups and their items are made, edited, deleted and put in
/// order: the groups at the left, the items of the selected one at the right.
class GroupsSettingsTab : public QWidget {
  Q_OBJECT

 public:
  /// \p fileChooser answers for the paths of items.
  GroupsSettingsTab(AppState &appState, FileChooser &fileChooser, QWidget *parent = nullptr);

  /// None also when the group that was selected no longer exists.
  const std::optional<QUuid> &selectedGroupId() const;
  const std::optional<QUuid> &selectedItemId() const;

 private:
  void connectSidebar();
  void connectDetail();
  void showSelectedGroup();

  void addGroup();
  void editGroup(const QUuid &id);
  void askToDeleteGroup(const QUuid &id);
  void deleteGroup(const QUuid &id);
  void showGroupMenu(const QUuid &id, const QPoint &position);

  void addItem();
  void editItem(const QUuid &id);
  void askToDeleteItem(const QUuid &id);
  void deleteItem(const QUuid &id);
  void showItemMenu(const QUuid &id, const QPoint &position);

  AppState &m_appState;
  FileChooser &m_fileChooser;
  GroupSidebarView *m_sidebar;
  GroupDetailView *m_detail;
  ListPane *m_pane;
};

}  // namespace lanternix
