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

  GroupListView &list() { return *m_list; }

 Q_SIGNALS:
  void groupRequested();
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
