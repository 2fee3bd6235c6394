#include "Views/Controls/FormSection.h"

#include "Views/Controls/TextColumn.h"
#include "Views/Style/DividerLine.h"
#include "Views/Style/FillStyle.h"
#include "Views/Style/TextLabel.h"

#include <QtGui/QPainter>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QVBoxLayout>

#include <memory>

namespace lanternix {

namespace {

constexpr int rowSidePadding = 12;
constexpr int rowPadding = 8;
constexpr int titleSpacing = 6;
constexpr double boxRadius = 8;

/// The rounded ground of a section's rows.
class Box : public QWidget {
 public:
  using QWidget::QWidget;

 protected:
  void paintEvent(QPaintEvent * /*event*/) override {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(fillColor(FillStyle::quaternary, palette()), 1));
    painter.setBrush(palette().color(isDark(palette()) ? QPalette::AlternateBase : QPalette::Base));
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), boxRadius, boxRadius);
  }
};

}  // namespace

FormSection::FormSection(const QString &title, QWidget *parent)
    : QWidget(parent),
      m_title(new TextLabel(title, TextStyle::subheadline, QFont::DemiBold, FillStyle::secondary,
                            this)),
      m_box(new Box(this)),
      m_rows(new QVBoxLayout(m_box)) {
  m_rows->setContentsMargins(0, 0, 0, 0);
  m_rows->setSpacing(0);
  auto *layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(titleSpacing);
  m_title->setContentsMargins(rowSidePadding, 0, rowSidePadding, 0);
  layout->addWidget(m_title);
  layout->addWidget(m_box);
  setTitle(title);
}

void FormSection::setTitle(const QString &title) {
  m_title->setText(title);
  m_title->setVisible(!title.isEmpty());
  setAccessibleName(title);
}

void FormSection::addRow(QWidget *row) {
  if (m_rows->count() > 0) {
    auto *line = new DividerLine(m_box);
    line->setContentsMargins(rowSidePadding, 0, rowSidePadding, 0);
    m_rows->addWidget(line);
  }
  auto *padded = new QWidget(m_box);
  auto *layout = new QHBoxLayout(padded);
  layout->setContentsMargins(rowSidePadding, rowPadding, rowSidePadding, rowPadding);
  layout->addWidget(row);
  m_rows->addWidget(padded);
}

void FormSection::addRow(const QString &title, const QString &caption, QWidget *control) {
  auto *row = new QWidget(m_box);
  auto *layout = new QHBoxLayout(row);
  layout->setContentsMargins(0, 0, 0, 0);
  const QFont::Weight weight = caption.isEmpty() ? QFont::Normal : QFont::Medium;
  QList<QWidget *> texts{new TextLabel(title, TextStyle::body, weight, FillStyle::primary, row)};
  if (!caption.isEmpty()) {
    texts.append(
        new TextLabel(caption, TextStyle::caption, QFont::Normal, FillStyle::secondary, row));
  }
  TextColumn::addClose(*layout, texts);
  layout->addStretch();
  layout->addWidget(control);
  addRow(row);
}

void FormSection::clear() {
  while (const std::unique_ptr<QLayoutItem> item{m_rows->takeAt(0)}) {
    // Later: who asks for this may be a control of the row that has just been pressed.
    item->widget()->hide();
    item->widget()->deleteLater();
  }
}

}  // namespace lanternix
