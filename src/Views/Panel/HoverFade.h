#pragma once

#include <QtCore/QHash>
#include <QtCore/QObject>

class QVariantAnimation;

namespace lanternix {

/// The pointer's highlight on the rows of a list: it fades in on the row under the pointer and out
/// on the rows that the pointer has left, each from wherever it stands when the pointer turns back.
class HoverFade : public QObject {
  Q_OBJECT

 public:
  using QObject::QObject;

  /// The row under the pointer, or -1.
  qsizetype row() const { return m_row; }

  /// How far the highlight of \p row has faded in, 0 to 1.
  double strength(qsizetype row) const;

  /// The pointer is over \p row now (-1: over none). Without \p animated the highlight changes at
  /// once.
  void moveTo(qsizetype row, bool animated);

  /// The rows are others now: the highlight stands fully on \p row and nowhere else.
  void reset(qsizetype row);

  /// Whether anything is still fading.
  bool isFading() const { return !m_fades.isEmpty(); }

 Q_SIGNALS:
  /// The highlight of \p row is to be drawn anew.
  void faded(qsizetype row);

 private:
  void fade(qsizetype row, double target);

  qsizetype m_row = -1;
  QHash<qsizetype, QVariantAnimation *> m_fades;
};

}  // namespace lanternix
