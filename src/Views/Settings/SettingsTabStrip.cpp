#include "Views/Settings/SettingsTabStrip.h"

#include "Views/Style/Contrast.h"
#include "Views/Style/FillStyle.h"
#include "Views/Style/FocusRing.h"
#include "Views/Style/Symbol.h"
#include "Views/Style/SystemColors.h"
#include "Views/Style/TextStyle.h"

#include <QtGui/QPainter>

#include <algorithm>

namespace lanternix {

namespace {

constexpr double radius = 8;
constexpr double symbolSide = 24;
constexpr int sidePadding = 14;
constexpr int linePadding = 6;
constexpr int spacing = 3;
constexpr int gap = 4;  // between two tabs
constexpr int narrowest = 68;

QFont nameFont() {
  return textFont(TextStyle::subheadline);
}

}  // namespace

SettingsTabStrip::SettingsTabStrip(QWidget *parent) : QTabBar(parent) {
  setDrawBase(false);
  setExpanding(false);
  setUsesScrollButtons(false);
  setElideMode(Qt::ElideNone);
  setFocusPolicy(Qt::StrongFocus);
}

int SettingsTabStrip::addSymbolTab(const QString &symbol, const QString &name) {
  const int index = addTab(name);
  setTabData(index, symbol);
  return index;
}

QSize SettingsTabStrip::tabSizeHint(int index) const {
  const QFontMetrics metrics(nameFont());
  const int width = metrics.horizontalAdvance(tabText(index)) + 2 * sidePadding;
  const int height = qRound(symbolSide) + spacing + metrics.height() + 2 * linePadding;
  return {std::max(width, narrowest) + gap, height};
}

QSize SettingsTabStrip::minimumTabSizeHint(int index) const {
  return tabSizeHint(index);
}

void SettingsTabStrip::paintEvent(QPaintEvent * /*event*/) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setFont(nameFont());
  for (int index = 0; index < count(); ++index) {
    drawTab(painter, index);
  }
}

void SettingsTabStrip::drawTab(QPainter &painter, int index) const {
  const QRect area = tabRect(index).adjusted(gap / 2, 0, -gap / 2, 0);
  const bool isShown = index == currentIndex();
  QColor color = fillColor(FillStyle::secondary, palette());
  if (isShown) {
    const QColor ground = fillColor(FillStyle::quaternary, palette());
    color = Contrast::readableOn(Contrast::laidOn(palette().color(QPalette::Window), ground),
                                 accentColor(palette()));
    painter.setPen(Qt::NoPen);
    painter.setBrush(ground);
    painter.drawRoundedRect(area, radius, radius);
  }
  // Only for those who got here by the keyboard.
  if (isShown && hasFocus() && window()->testAttribute(Qt::WA_KeyboardFocusChange)) {
    FocusRing::draw(painter, palette(), QRectF(area).adjusted(1, 1, -1, -1), radius - 1);
  }
  QRect symbol = area.adjusted(0, linePadding, 0, 0);
  symbol.setHeight(qRound(symbolSide));
  Symbol::draw(painter, symbol, tabData(index).toString(), symbolSide, color);
  painter.setPen(color);
  painter.drawText(area.adjusted(0, 0, 0, -linePadding),
                   Qt::AlignHCenter | Qt::AlignBottom | Qt::TextSingleLine, tabText(index));
}

}  // namespace lanternix
