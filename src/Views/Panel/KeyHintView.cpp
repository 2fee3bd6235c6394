#include "Views/Panel/KeyHintView.h"

#include "Views/Style/Contrast.h"
#include "Views/Style/FillStyle.h"
#include "Views/Style/TextStyle.h"

#include <QtGui/QFontMetricsF>
#include <QtGui/QPainter>

#include <utility>

using namespace Qt::StringLiterals;

namespace lanternix {

namespace {

constexpr double capSidePadding = 5;
constexpr double capPadding = 2;
constexpr double capRadius = 3;
constexpr double spacing = 4;

QFont keyFont() {
  return textFont(TextStyle::caption2, QFont::Medium);
}

QFont wordFont() {
  return textFont(TextStyle::caption2);
}

}  // namespace

KeyHintView::KeyHintView(QString key, QString word, QWidget *parent)
    : QWidget(parent), m_key(std::move(key)), m_word(std::move(word)) {
  setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
  updateAccessibleName();
}

void KeyHintView::setKey(const QString &key) {
  m_key = key;
  updateAccessibleName();
  updateGeometry();
  update();
}

void KeyHintView::updateAccessibleName() {
  setAccessibleName(m_key + u' ' + m_word);
}

QRectF KeyHintView::keyCap() const {
  const QFontMetricsF metrics(keyFont());
  return {0, 0, metrics.horizontalAdvance(m_key) + 2 * capSidePadding,
          metrics.height() + 2 * capPadding};
}

QSize KeyHintView::sizeHint() const {
  const QRectF cap = keyCap();
  return {qCeil(cap.width() + spacing + QFontMetricsF(wordFont()).horizontalAdvance(m_word)),
          qCeil(cap.height())};
}

void KeyHintView::paintEvent(QPaintEvent * /*event*/) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  QRectF cap = keyCap();
  cap.moveTop((height() - cap.height()) / 2);
  painter.setPen(Qt::NoPen);
  const QColor capColor = fillColor(FillStyle::quaternary, palette());
  painter.setBrush(capColor);
  painter.drawRoundedRect(cap, capRadius, capRadius);
  const QColor ground = Contrast::laidOn(palette().color(QPalette::Window), capColor);
  painter.setPen(fillColor(FillStyle::tertiary, palette(), ground));
  painter.setFont(keyFont());
  painter.drawText(cap, Qt::AlignCenter, m_key);
  painter.setPen(fillColor(FillStyle::tertiary, palette()));
  painter.setFont(wordFont());
  painter.drawText(QRectF(rect()).adjusted(cap.right() + spacing, 0, 0, 0),
                   Qt::AlignLeft | Qt::AlignVCenter, m_word);
}

}  // namespace lanternix
