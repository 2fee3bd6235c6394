#include "Views/Panel/ScopeBadgeView.h"

#include "Views/Style/Contrast.h"
#include "Views/Style/DisplayText.h"
#include "Views/Style/Symbol.h"
#include "Views/Style/SystemColors.h"
#include "Views/Style/TextStyle.h"

#include <QtGui/QFontMetricsF>
#include <QtGui/QPainter>

using namespace Qt::StringLiterals;

namespace lanternix {

namespace {

constexpr double sidePadding = 6;
constexpr double padding = 2;
constexpr double spacing = 4;

QFont badgeFont() {
  return textFont(TextStyle::caption2);
}

double symbolSide() {
  return Symbol::sideFor(badgeFont());
}

}  // namespace

ScopeBadgeView::ScopeBadgeView(QWidget *parent) : QWidget(parent) {
  setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
}

void ScopeBadgeView::setNames(const QString &names) {
  constexpr qsizetype longest = 200;  // more than the footer has room for
  m_names = DisplayText::singleLine(DisplayText::shortened(names, longest, Qt::ElideRight));
  setAccessibleName(u"Scope: "_s + m_names);
  updateGeometry();
  update();
}

QSize ScopeBadgeView::sizeHint() const {
  const QFontMetricsF metrics(badgeFont());
  return {qCeil(metrics.horizontalAdvance(m_names) + symbolSide() + spacing + 2 * sidePadding),
          qCeil(metrics.height() + 2 * padding)};
}

QSize ScopeBadgeView::minimumSizeHint() const {
  return {qCeil(symbolSide() + 2 * sidePadding), sizeHint().height()};
}

void ScopeBadgeView::paintEvent(QPaintEvent * /*event*/) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const QColor blue = systemColor(SystemColor::blue, palette());
  const QColor fill = withOpacity(blue, 0.15F);
  const QColor ground = Contrast::laidOn(palette().color(QPalette::Window), fill);
  const QColor color = Contrast::readableOn(ground, blue);
  const QRectF capsule = rect();
  painter.setPen(Qt::NoPen);
  painter.setBrush(fill);
  painter.drawRoundedRect(capsule, capsule.height() / 2, capsule.height() / 2);

  const double side = symbolSide();
  Symbol::draw(painter, {sidePadding, 0, side, capsule.height()}, u"scope"_s, side, color);
  const QRectF text = capsule.adjusted(sidePadding + side + spacing, 0, -sidePadding, 0);
  painter.setFont(badgeFont());
  painter.setPen(color);
  painter.drawText(text, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                   DisplayText::elided(m_names, badgeFont(), Qt::ElideRight, text.width()));
}

}  // namespace lanternix
