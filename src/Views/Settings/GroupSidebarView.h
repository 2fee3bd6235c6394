#pragma once

#include <QtWidgets/QWidget>

namespace lanternix {

class AppState;
class GroupListModel;
class GroupListView;
class ListPane;
class SymbolButton;

/// The pane of the groups: their list, or what to do without any, above a bar of buttons that add,
/// edit and delete.
class GroupSidebarView : public QWidget {
  Q_OBJECT

 public:
  explicit GroupSidebarView(AppState &appState, QWidget *parent = nullptr);

  /// The groups. What is requested of a row comes through this view's signals, as from its buttons.
  GroupListView &list() { return *m_list; }

 Q_SIGNALS:
  /// A new group is to be made.
  void groupRequested();
  /// The group with this id is to be edited, or the user to be asked whether it is to be deleted.
  void editRequested(const QUuid &id);
  void deletionRequested(const QUuid &id);

 private:
  QWidget *makeBar();
  void showState();

  AppState &m_appState;
  GroupListModel *m_model;
  GroupListView *m_list;
  ListPane *m_pane;
  SymbolButton *m_edit;
  SymbolButton *m_delete;
};

}  // namespace lanternix
