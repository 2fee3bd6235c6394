#pragma once

#include "Views/Style/FillStyle.h"

#include <QtWidgets/QStyledItemDelegate>

#include <optional>

namespace lanternix {

class RecordListView;

/// Draws the rows of a list of groups or items: the ground of a selected row and of one that would
/// take what is dragged over it, a picture, the lines beside it, and the handle at the end. Which
/// picture and lines, delegates that derive from this one say.
class RecordRowDelegate : public QStyledItemDelegate {
  Q_OBJECT

 public:
  void paint(QPainter *painter, const QStyleOptionViewItem &option,
             const QModelIndex &index) const override;
  QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;

 protected:
  /// In logical pixels.
  struct Measures {
    double pictureWidth = 0;
    double pictureHeight = 0;  ///< 0: as high as the row
    double lineSpacing = 0;
  };

  /// A name and, in smaller type below it, a caption.
  struct Lines {
    QString name;
    QString caption;
    Qt::TextElideMode captionElision = Qt::ElideRight;
    bool hasWarning = false;  ///< a symbol at the end says that something is wrong
  };

  /// \p view owns the delegate.
  RecordRowDelegate(const Measures &measures, RecordListView &view);

  /// None, for a row whose record is gone, draws nothing.
  virtual std::optional<Lines> linesOf(qsizetype row) const = 0;
  /// Only called for a row that has lines.
  virtual void paintPicture(QPainter &painter, const QPalette &palette, const QRectF &area,
                            qsizetype row) const = 0;

 private:
  /// The colours of a row, which can be read on its ground.
  struct Inks {
    const QPalette &palette;
    QColor ground;
    QColor of(FillStyle style) const { return fillColor(style, palette, ground); }
  };

  QColor paintGround(QPainter &painter, const QStyleOptionViewItem &option,
                     const QModelIndex &index) const;
  void paintContent(QPainter &painter, const Inks &inks, const QRectF &area, qsizetype row) const;
  void paintLines(QPainter &painter, const Inks &inks, const QRectF &area,
                  const Lines &lines) const;
  double linesHeight() const;
  double contentHeight() const;

  const Measures m_measures;
  const RecordListView &m_view;
};

}  // namespace lanternix
