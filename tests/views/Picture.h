#pragma once

#include <QtGui/QColor>
#include <QtGui/QFont>
#include <QtGui/QImage>

#include <functional>
#include <gtest/gtest.h>

class QPainter;
class QWidget;

namespace lanternix {

/// What a widget shows, to be asked questions. Every place is in logical pixels of the widget, at
/// whatever scale the picture was taken.
class Picture {
 public:
  using Drawing = std::function<void(QPainter &)>;

  /// One line of text as it is expected.
  struct Text {
    QString text;
    QFont font;
    QColor color;
    /// Nothing else stands here. The text is in the middle of its height.
    QRectF place;
    Qt::Alignment alignment = Qt::AlignLeft;
  };

  /// A symbol as it is expected, in the middle of \p place.
  struct Mark {
    QString symbol;
    double side;
    QColor color;
    QRectF place;
  };

  /// The widget as it is drawn now.
  static Picture of(QWidget &widget);

  QColor at(const QPointF &position) const;

  /// The smallest rectangle around everything in \p area that has \p color; empty when nothing has.
  QRectF boundsOf(const QColor &color, const QRectF &area) const;

  /// Whether \p area holds nothing but \p color.
  testing::AssertionResult isPlain(const QRectF &area, const QColor &color) const;

  /// Whether \p area looks like \p drawing on \p ground, and like nothing else: but for one pixel
  /// in a hundred, for what the edges of shapes owe to rounding.
  testing::AssertionResult shows(const QRectF &area, const QColor &ground,
                                 const Drawing &drawing) const;
  testing::AssertionResult shows(const Text &text, const QColor &ground) const;
  testing::AssertionResult shows(const Mark &mark, const QColor &ground) const;

 private:
  explicit Picture(QImage image);

  /// In the picture's own pixels.
  QRect pixels(const QRectF &area) const;

  QImage m_image;
};

}  // namespace lanternix
