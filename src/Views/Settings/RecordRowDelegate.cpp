#include "Views/Settings/RecordRowDelegate.h"

#include "Models/SystemColor.h"
#include "Views/Settings/RecordListModel.h"
#include "Views/Settings/RecordListView.h"
#include "Views/Style/Contrast.h"
#include "Views/Style/DisplayText.h"
#include "Views/Style/Symbol.h"
#include "Views/Style/SystemColors.h"
#include "Views/Style/TextStyle.h"

#include <QtGui/QFontMetricsF>
#include <QtGui/QPainter>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace lanternix {

namespace {

constexpr double groundInset = 8;  // at both sides
constexpr double groundRadius = 6;
constexpr double sidePadding = 10;  // within the ground
constexpr double linePadding = 2;
constexpr double listPadding = 4;  // of the ground, above and below what the row holds
constexpr double spacing = 10;

QFont nameFont() {
  return textFont(TextStyle::body, QFont::Medium);
}

QFont captionFont() {
  return textFont(TextStyle::caption);
}

/// Draws a symbol as high as the caption at the end of \p area, which ends before it then.
void paintSymbolAtEnd(QPainter &painter, QRectF &area, const QString &name, const QColor &color) {
  const double side = Symbol::sideFor(captionFont());
  Symbol::draw(painter, QRectF(area.right() - side, area.top(), side, area.height()), name, side,
               color);
  area.setRight(area.right() - side - spacing);
}

void paintLine(QPainter &painter, const QRectF &area, const QFont &font, const QColor &color,
               const QString &text, Qt::TextElideMode elision) {
  painter.setFont(font);
  painter.setPen(color);
  painter.drawText(area, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                   DisplayText::elided(text, font, elision, area.width()));
}

}  // namespace

RecordRowDelegate::RecordRowDelegate(const Measures &measures, RecordListView &view)
    : QStyledItemDelegate(&view), m_measures(measures), m_view(view) {}

QSize RecordRowDelegate::sizeHint(const QStyleOptionViewItem & /*option*/,
                                  const QModelIndex & /*index*/) const {
  // As wide as the list makes it.
  return {0, static_cast<int>(std::ceil(contentHeight() + 2 * (linePadding + listPadding)))};
}

void RecordRowDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                              const QModelIndex &index) const {
  painter->save();
  painter->setRenderHint(QPainter::Antialiasing);
  const Inks inks{option.palette, paintGround(*painter, option, index)};
  QRectF area = option.rect;
  area.adjust(groundInset + sidePadding, 0, -groundInset - sidePadding, 0);
  paintSymbolAtEnd(*painter, area, u"line.3.horizontal"_s, inks.of(FillStyle::tertiary));
  paintContent(*painter, inks, area, index.row());
  painter->restore();
}

QColor RecordRowDelegate::paintGround(QPainter &painter, const QStyleOptionViewItem &option,
                                      const QModelIndex &index) const {
  const QColor accent = selectionColor(option.palette);
  const QRectF shape = QRectF(option.rect).adjusted(groundInset, 1, -groundInset, -1);
  QColor ground = option.palette.color(QPalette::Window);
  const auto fill = [&](const QColor &color) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(color);
    painter.drawRoundedRect(shape, groundRadius, groundRadius);
    ground = Contrast::laidOn(ground, color);
  };
  if (option.state.testFlag(QStyle::State_Selected)) {
    // The accent colour says that keys would reach the row.
    fill(m_view.hasFocus() ? accent : fillColor(FillStyle::quaternary, option.palette));
  }
  if (option.state.testFlag(QStyle::State_HasFocus) && m_view.selectedId() == std::nullopt) {
    // Where the arrow keys would begin.
    painter.setPen(QPen(accentColor(option.palette), 1));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(shape.adjusted(0.5, 0.5, -0.5, -0.5), groundRadius, groundRadius);
  }
  const std::optional<QUuid> &target = m_view.dragTargetId();
  if (target.has_value() && index.data(RecordListModel::IdRole).toUuid() == *target) {
    fill(accent);
  }
  return ground;
}

void RecordRowDelegate::paintContent(QPainter &painter, const Inks &inks, const QRectF &area,
                                     qsizetype row) const {
  const std::optional<Lines> lines = linesOf(row);
  if (!lines) {
    return;
  }
  QRectF picture(area.topLeft(), QSizeF(m_measures.pictureWidth, area.height()));
  if (m_measures.pictureHeight > 0) {
    picture.setHeight(m_measures.pictureHeight);
    picture.moveTop(std::round(area.center().y() - m_measures.pictureHeight / 2));
  }
  paintPicture(painter, inks.palette, picture, row);
  QRectF text = area.adjusted(m_measures.pictureWidth + spacing, 0, 0, 0);
  if (lines->hasWarning) {
    paintSymbolAtEnd(painter, text, u"exclamationmark.triangle.fill"_s,
                     systemColor(SystemColor::yellow, inks.palette));
  }
  paintLines(painter, inks, text, *lines);
}

double RecordRowDelegate::linesHeight() const {
  return QFontMetricsF(nameFont()).height() + m_measures.lineSpacing +
         QFontMetricsF(captionFont()).height();
}

double RecordRowDelegate::contentHeight() const {
  return std::max(m_measures.pictureHeight, linesHeight());
}

void RecordRowDelegate::paintLines(QPainter &painter, const Inks &inks, const QRectF &area,
                                   const Lines &lines) const {
  QRectF line = area;
  line.setTop(area.center().y() - linesHeight() / 2);
  line.setHeight(QFontMetricsF(nameFont()).height());
  paintLine(painter, line, nameFont(), inks.of(FillStyle::primary), lines.name, Qt::ElideRight);
  line.moveTop(line.bottom() + m_measures.lineSpacing);
  line.setHeight(QFontMetricsF(captionFont()).height());
  // Numbers and paths run from left to right, in whatever script their parts are.
  painter.setLayoutDirection(Qt::LeftToRight);
  paintLine(painter, line, captionFont(), inks.of(FillStyle::secondary), lines.caption,
            lines.captionElision);
  painter.setLayoutDirection(Qt::LayoutDirectionAuto);
}

}  // namespace lanternix
