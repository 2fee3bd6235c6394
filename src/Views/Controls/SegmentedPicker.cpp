#include "Views/Controls/SegmentedPicker.h"

#include "Views/Style/FillStyle.h"
#include "Views/Style/FocusRing.h"
#include "Views/Style/TextStyle.h"

#include <QtGui/QPainter>
#include <QtWidgets/QButtonGroup>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QRadioButton>

namespace lanternix {

namespace {

constexpr double radius = 6;
constexpr int inset = 2;
constexpr int margin = 3;  // as much as the ring of the controls above and below takes
constexpr int linePadding = 4;
constexpr int sidePadding = 6;

/// One of the choices. A radio button, so that keys and screen readers take it for what it is.
class Segment : public QRadioButton {
 public:
  using QRadioButton::QRadioButton;

  QSize sizeHint() const override {
    return fontMetrics().size(Qt::TextHideMnemonic, text()) +
           QSize(2 * sidePadding, 2 * linePadding);
  }

 protected:
  bool hitButton(const QPoint &position) const override { return rect().contains(position); }

  void paintEvent(QPaintEvent * /*event*/) override {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF shape = QRectF(rect()).adjusted(inset, inset, -inset, -inset);
    if (isChecked()) {
      painter.setPen(QPen(fillColor(FillStyle::quaternary, palette()), 1));
      painter.setBrush(isDark(palette()) ? fillColor(FillStyle::quaternary, palette())
                                         : palette().color(QPalette::Base));
      painter.drawRoundedRect(shape, radius - inset, radius - inset);
    }
    if (hasFocus()) {
      FocusRing::draw(painter, palette(), shape, radius - inset);
    }
    painter.setPen(fillColor(FillStyle::primary, palette()));
    painter.drawText(rect(), Qt::AlignCenter | Qt::TextHideMnemonic, text());
  }
};

}  // namespace

SegmentedPicker::SegmentedPicker(const QString &name, const QStringList &texts, QWidget *parent)
    : QWidget(parent), m_buttons(new QButtonGroup(this)) {
  setAccessibleName(name);
  auto *layout = new QHBoxLayout(this);
  layout->setContentsMargins(margin, margin, margin, margin);
  layout->setSpacing(0);
  for (const QString &text : texts) {
    auto *segment = new Segment(text, this);
    segment->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    m_buttons->addButton(segment, static_cast<int>(m_buttons->buttons().size()));
    layout->addWidget(segment, 1);
  }
  connect(m_buttons, &QButtonGroup::idToggled, this, [this](int id, bool checked) {
    if (checked) {
      letTabStopAt(id);
      Q_EMIT currentIndexChanged(id);
    }
  });
}

/// The Tab key stops at one segment only; from there the arrows go to the others.
void SegmentedPicker::letTabStopAt(int index) {
  const QList<QAbstractButton *> segments = m_buttons->buttons();
  for (QAbstractButton *segment : segments) {
    segment->setFocusPolicy(m_buttons->id(segment) == index ? Qt::StrongFocus : Qt::ClickFocus);
  }
}

int SegmentedPicker::currentIndex() const {
  return m_buttons->checkedId();
}

void SegmentedPicker::setCurrentIndex(int index) {
  if (QAbstractButton *button = m_buttons->button(index)) {
    const QSignalBlocker blocker(this);
    button->setChecked(true);
  }
}

QSize SegmentedPicker::sizeHint() const {
  QSize largest;
  const QList<QAbstractButton *> segments = m_buttons->buttons();
  for (const QAbstractButton *segment : segments) {
    largest = largest.expandedTo(segment->sizeHint());
  }
  const auto count = static_cast<int>(segments.size());
  return {count * largest.width() + 2 * margin, largest.height() + 2 * margin};
}

void SegmentedPicker::paintEvent(QPaintEvent * /*event*/) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(fillColor(FillStyle::quaternary, palette()));
  painter.drawRoundedRect(rect().adjusted(margin, margin, -margin, -margin), radius, radius);
}

}  // namespace lanternix
