#pragma once

#include <QtCore/QUuid>
#include <QtWidgets/QWidget>

#include <optional>

class QPushButton;

namespace lanternix {

class AppState;
class ItemListModel;
class ListPane;
class RecordListView;
class SymbolLabel;
class TextLabel;

/// The pane of one group: a header with its name and a button that adds an item, above the list of
/// its items, or a word about their absence.
class GroupDetailView : public QWidget {
  Q_OBJECT

 public:
  explicit GroupDetailView(AppState &appState, QWidget *parent = nullptr);

  /// No item is selected afterwards.
  void setGroupId(const std::optional<QUuid> &id);

  /// The items, whose requests are the list's own signals.
  RecordListView &list() { return *m_list; }

 Q_SIGNALS:
  /// A new item is to be made in the group.
  void itemRequested();

 protected:
  void changeEvent(QEvent *event) override;

 private:
  QWidget *makeHeader();
  void updateButton();
  void showState();

  AppState &m_appState;
  ItemListModel *m_model;
  RecordListView *m_list;
  ListPane *m_pane;
  SymbolLabel *m_icon;
  TextLabel *m_name;
  TextLabel *m_count;
  QPushButton *m_add;
};

}  // namespace lanternix
