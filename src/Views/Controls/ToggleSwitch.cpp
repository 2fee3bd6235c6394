#include "Views/Controls/ToggleSwitch.h"

#include "Views/Style/FillStyle.h"
#include "Views/Style/FocusRing.h"
#include "Views/Style/SystemColors.h"

#include <QtCore/QVariantAnimation>
#include <QtGui/QPainter>
#include <QtWidgets/QStyle>

namespace lanternix {

namespace {

constexpr QSize trackSize{36, 20};
constexpr int focusMargin = 3;
constexpr double knobInset = 2;
constexpr int slideDuration = 150;  // milliseconds

QColor mixed(const QColor &from, const QColor &to, double part) {
  const auto channel = [part](float a, float b) { return a + (b - a) * static_cast<float>(part); };
  return QColor::fromRgbF(channel(from.redF(), to.redF()), channel(from.greenF(), to.greenF()),
                          channel(from.blueF(), to.blueF()), channel(from.alphaF(), to.alphaF()));
}

}  // namespace

ToggleSwitch::ToggleSwitch(const QString &name, QWidget *parent)
    : QAbstractButton(parent), m_slide(new QVariantAnimation(this)) {
  setCheckable(true);
  setAccessibleName(name);
  setFocusPolicy(Qt::StrongFocus);
  setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
  m_slide->setEasingCurve(QEasingCurve::InOutSine);
  connect(m_slide, &QVariantAnimation::valueChanged, this, qOverload<>(&QWidget::update));
}

QSize ToggleSwitch::sizeHint() const {
  return trackSize + QSize(2 * focusMargin, 2 * focusMargin);
}

double ToggleSwitch::position() const {
  if (m_slide->state() == QAbstractAnimation::Running) {
    return m_slide->currentValue().toDouble();
  }
  return isChecked() ? 1 : 0;
}

void ToggleSwitch::nextCheckState() {
  const double start = position();
  QAbstractButton::nextCheckState();
  if (style()->styleHint(QStyle::SH_Widget_Animate, nullptr, this) != 0) {
    m_slide->setDuration(slideDuration);
    m_slide->setStartValue(start);
    m_slide->setEndValue(isChecked() ? 1.0 : 0.0);
    m_slide->start();
  }
}

// A switch that is set while it still slides, as one is that cannot be turned, is where it is set.
void ToggleSwitch::checkStateSet() {
  if (m_slide->endValue().toBool() != isChecked()) {
    m_slide->stop();
  }
}

void ToggleSwitch::paintEvent(QPaintEvent * /*event*/) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  constexpr double disabledOpacity = 0.5;
  painter.setOpacity(isEnabled() ? 1 : disabledOpacity);
  QRectF track({}, trackSize);
  track.moveCenter(QRectF(rect()).center());
  const double radius = track.height() / 2;
  painter.setPen(Qt::NoPen);
  painter.setBrush(
      mixed(fillColor(FillStyle::quaternary, palette()), accentColor(palette()), position()));
  painter.drawRoundedRect(track, radius, radius);
  const double diameter = track.height() - 2 * knobInset;
  const double travel = track.width() - track.height();
  painter.setBrush(Qt::white);
  painter.drawEllipse(QRectF(track.left() + knobInset + travel * position(),
                             track.top() + knobInset, diameter, diameter));
  if (hasFocus()) {
    FocusRing::draw(painter, palette(), track.adjusted(-2, -2, 2, 2), radius + 2);
  }
}

}  // namespace lanternix
