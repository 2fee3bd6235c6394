#pragma once

#include "Views/Style/FillStyle.h"

#include <QtWidgets/QStyledItemDelegate>

namespace lanternix {

class RecordListView;

/// Draws the rows of a list of groups or items: the ground of a selected row and of one that would
/// take what is dragged over it, and the handle at its end. What is between them, delegates that
/// derive from this one draw.
class RecordRowDelegate : public QStyledItemDelegate {
  Q_OBJECT

 public:
  /// \p view owns the delegate.
  explicit RecordRowDelegate(RecordListView &view);

  void paint(QPainter *painter, const QStyleOptionViewItem &option,
             const QModelIndex &index) const override;
  QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;

 protected:
  /// The colours of a row, which can be read on its ground.
  struct Inks {
    const QPalette &palette;
    QColor ground;
    QColor of(FillStyle style) const { return fillColor(style, palette, ground); }
  };

  /// A name and, in smaller type below it, a caption.
  struct Lines {
    QString name;
    QString caption;
    Qt::TextElideMode captionElision = Qt::ElideRight;
    double spacing = 0;
  };

  virtual double contentHeight() const = 0;
  virtual void paintContent(QPainter &painter, const Inks &inks, const QRectF &area,
                            qsizetype row) const = 0;

  static double linesHeight(double spacing);
  static void paintLines(QPainter &painter, const Inks &inks, const QRectF &area,
                         const Lines &lines);

 private:
  QColor paintGround(QPainter &painter, const QStyleOptionViewItem &option,
                     const QModelIndex &index) const;

  const RecordListView &m_view;
};

}  // namespace lanternix
