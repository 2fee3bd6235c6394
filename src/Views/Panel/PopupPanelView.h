#pragma once

#include <QtWidgets/QWidget>

class QScrollArea;
class QStackedLayout;

namespace lanternix {

class AppState;
class EmptyStateView;
class NoResultsView;
class PanelListModel;
class PanelListView;
class SearchBarView;

/// The whole content of the panel: header, search, list, footer. Where the list has no row at all,
/// what it says instead.
///
/// Letters are typed into the search field wherever the Tab key has led the keyboard, and its wish
/// for a menu (Menu key, Shift+F10) is meant for the item that the arrow keys have selected.
class PopupPanelView : public QWidget {
  Q_OBJECT

 public:
  explicit PopupPanelView(AppState &appState, QWidget *parent = nullptr);

  /// Gives the keyboard to the search field.
  void focusSearch();

 protected:
  bool eventFilter(QObject *watched, QEvent *event) override;
  void contextMenuEvent(QContextMenuEvent *event) override;
  void keyPressEvent(QKeyEvent *event) override;
  void paintEvent(QPaintEvent *event) override;

 private:
  QWidget *makeSearchRow();
  bool openMenuFor(const QContextMenuEvent &event);
  QWidget *makeMessages();
  void updateMessages();
  void openSettings();

  AppState &m_appState;
  PanelListModel *m_model;
  PanelListView *m_list;
  SearchBarView *m_searchBar;
  EmptyStateView *m_emptyState;
  NoResultsView *m_noResults;
  QScrollArea *m_messages;
  QStackedLayout *m_body;
};

}  // namespace lanternix
