#include "Views/Panel/GroupFolding.h"

#include <QtCore/QVariantAnimation>

#include <utility>

namespace lanternix {

namespace {

constexpr int foldDuration = 200;  // milliseconds

}  // namespace

double GroupFolding::openness(const QUuid &group) const {
  const QVariantAnimation *movement = m_movements.value(group);
  return movement != nullptr ? movement->currentValue().toDouble() : 1;
}

void GroupFolding::start(const QUuid &group, bool unfolds) {
  const double start = isMoving(group) ? openness(group) : unfolds ? 0 : 1;
  delete m_movements.take(group);
  auto *movement = new QVariantAnimation(this);
  movement->setDuration(foldDuration);
  movement->setEasingCurve(QEasingCurve::InOutSine);
  movement->setStartValue(start);
  movement->setEndValue(unfolds ? 1.0 : 0.0);
  connect(movement, &QVariantAnimation::valueChanged, this, &GroupFolding::moved);
  connect(movement, &QVariantAnimation::finished, this, [this, group] {
    m_movements.take(group)->deleteLater();
    Q_EMIT settled(group);
  });
  m_movements.insert(group, movement);
  movement->start();
}

void GroupFolding::finish() {
  const auto movements = std::exchange(m_movements, {});
  for (auto movement = movements.cbegin(); movement != movements.cend(); ++movement) {
    delete movement.value();
    Q_EMIT settled(movement.key());
  }
}

}  // namespace lanternix
