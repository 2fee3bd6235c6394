#pragma once

#include <QtCore/QList>
#include <QtWidgets/QWidget>

namespace lanternix {

class ChoiceCell;

/// A choice of one among many cells, in as many columns as find room. It takes one stop of the Tab
/// key: the arrow keys, Home and End choose. Nothing need be chosen at first.
class ChoiceGrid : public QWidget {
  Q_OBJECT

 public:
  struct Shape {
    /// Columns are at least this wide.
    int narrowestColumn = 0;
    /// Of the ring around the cell that has the keyboard.
    double cellRadius = 0;
    /// Whether the columns share what room is left; otherwise it stays at the end.
    bool fillsWidth = true;
  };

  /// \p name is what the choice is called for who cannot see its label.
  ChoiceGrid(const QString &name, const Shape &shape, QWidget *parent = nullptr);

  /// Appends \p cell, which excludes the others and which the grid owns from now on.
  void addCell(ChoiceCell *cell);
  const QList<ChoiceCell *> &cells() const { return m_cells; }

  /// -1 while nothing is chosen.
  int currentIndex() const;
  /// Says nothing by currentIndexChanged().
  void setCurrentIndex(int index);

  bool hasHeightForWidth() const override { return true; }
  int heightForWidth(int width) const override;
  QSize sizeHint() const override;
  bool eventFilter(QObject *cell, QEvent *event) override;

 Q_SIGNALS:
  /// The user has chosen another one.
  void currentIndexChanged(int index);

 protected:
  void paintEvent(QPaintEvent *event) override;
  void resizeEvent(QResizeEvent *event) override;

 private:
  int columnCount(int width) const;
  QSize cellSize() const;
  void placeCells();
  void updateTabStop();
  bool handleKey(int index, int key);

  Shape m_shape;
  QList<ChoiceCell *> m_cells;
};

}  // namespace lanternix
