#pragma once

#include "Views/Settings/ClickRun.h"

#include <QtCore/QUuid>
#include <QtWidgets/QListView>

#include <optional>

namespace lanternix {

class EdgeScroller;
class RecordListModel;

/// A list of groups or items: one can be selected, edited, deleted and moved, by the mouse and by
/// the keyboard alike. The selection is that of an id and stays with it when rows come, go or move.
///
/// Keys: Up and Down select, F2 and Return edit, Delete asks to delete, Alt with Up and Down moves
/// the row, the menu key and Shift+F10 open its menu. Rows are dragged within the list, with a line
/// where they would go; what else a row takes, lists that derive from this one say.
class RecordListView : public QListView {
  Q_OBJECT

 public:
  /// \p name is what the list is called for who cannot see it.
  RecordListView(RecordListModel &model, const QString &name, QWidget *parent = nullptr);

  const std::optional<QUuid> &selectedId() const { return m_selectedId; }
  /// An id that is not in the list selects nothing. The arrow keys begin at the list's ends then,
  /// wherever a row was deleted before.
  void setSelectedId(const std::optional<QUuid> &id);

  /// Where the row that is dragged would go: before the row of this number.
  const std::optional<int> &insertionRow() const { return m_insertionRow; }
  /// The row that would take what is dragged over it.
  const std::optional<QUuid> &dragTargetId() const { return m_dragTargetId; }
  /// What is seen under the pointer while a row is dragged: the row, but only so wide that the line
  /// where it would go is seen beside it, and through it where windows are blended.
  QPixmap dragPicture(const QModelIndex &index) const;

 Q_SIGNALS:
  void selectedIdChanged();
  /// By a key, or by the second press of a run, when the press is done with.
  void editRequested(const QUuid &id);
  /// Before anybody was asked.
  void deletionRequested(const QUuid &id);
  /// Of a row, selected or not. \p globalPosition is where the menu's corner belongs, on the
  /// screen.
  void menuRequested(const QUuid &id, const QPoint &globalPosition);

 protected:
  /// Whether rows take what is dragged over them, beside the list's own rows between them.
  virtual bool takesOnRow(const QMimeData &payload) const;
  virtual void dropOnRow(const QMimeData &payload, const QUuid &id);

  void changeEvent(QEvent *event) override;
  void contextMenuEvent(QContextMenuEvent *event) override;
  void keyPressEvent(QKeyEvent *event) override;
  void mouseDoubleClickEvent(QMouseEvent *event) override;
  void mouseMoveEvent(QMouseEvent *event) override;
  void mousePressEvent(QMouseEvent *event) override;
  void selectionChanged(const QItemSelection &selected, const QItemSelection &deselected) override;

  // RecordListViewDragging.cpp
  void dragEnterEvent(QDragEnterEvent *event) override;
  void dragLeaveEvent(QDragLeaveEvent *event) override;
  void dragMoveEvent(QDragMoveEvent *event) override;
  void dropEvent(QDropEvent *event) override;
  void paintEvent(QPaintEvent *event) override;
  void scrollContentsBy(int dx, int dy) override;
  void startDrag(Qt::DropActions actions) override;

 private:
  void rememberPlace();
  void restoreSelection();
  void note(const std::optional<QUuid> &selected);
  bool handleKey(const QKeyEvent &event);
  bool ask(const QKeyEvent &event, void (RecordListView::*request)(const QUuid &));
  bool moveSelected(int step);
  bool openMenuOfSelected();
  bool selectAnew(int step);
  void countClick(const QMouseEvent &event);

  int gapAt(const QPoint &position) const;
  void follow(QDropEvent &event);
  void placeMarks();
  void endDrag();

  enum class Drag { none, ofRow, ontoRow };

  RecordListModel &m_model;
  std::optional<QUuid> m_selectedId;
  std::optional<int> m_vacatedRow;  ///< where the selected row was before it went
  ClickRun m_clicks;
  QPoint m_pressPosition;

  Drag m_drag = Drag::none;
  EdgeScroller *m_edgeScroller;
  QPoint m_dragPosition;
  std::optional<int> m_insertionRow;
  std::optional<QUuid> m_dragTargetId;
};

}  // namespace lanternix
