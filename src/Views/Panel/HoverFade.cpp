#include "Views/Panel/HoverFade.h"

#include <QtCore/QVariantAnimation>

#include <utility>

namespace lanternix {

namespace {

constexpr int fadeDuration = 150;  // milliseconds

}  // namespace

double HoverFade::strength(qsizetype row) const {
  if (const QVariantAnimation *fade = m_fades.value(row)) {
    return fade->currentValue().toDouble();
  }
  return row >= 0 && row == m_row ? 1 : 0;
}

void HoverFade::moveTo(qsizetype row, bool animated) {
  if (row == m_row) {
    return;
  }
  const qsizetype left = std::exchange(m_row, row);
  if (animated) {
    fade(left, 0);
    fade(row, 1);
    return;
  }
  Q_EMIT faded(left);
  Q_EMIT faded(row);
}

void HoverFade::reset(qsizetype row) {
  qDeleteAll(m_fades);
  m_fades.clear();
  m_row = row;
}

void HoverFade::fade(qsizetype row, double target) {
  if (row < 0) {
    return;
  }
  const QVariantAnimation *running = m_fades.value(row);
  const double start = running != nullptr ? running->currentValue().toDouble() : 1 - target;
  delete m_fades.take(row);
  auto *animation = new QVariantAnimation(this);
  animation->setDuration(fadeDuration);
  animation->setEasingCurve(QEasingCurve::InOutSine);
  animation->setStartValue(start);
  animation->setEndValue(target);
  connect(animation, &QVariantAnimation::valueChanged, this, [this, row] { Q_EMIT faded(row); });
  connect(animation, &QVariantAnimation::finished, this, [this, row] {
    m_fades.take(row)->deleteLater();
    Q_EMIT faded(row);
  });
  m_fades.insert(row, animation);
  animation->start();
}

}  // namespace lanternix
