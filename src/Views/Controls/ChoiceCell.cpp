#include "Views/Controls/ChoiceCell.h"

namespace lanternix {

ChoiceCell::ChoiceCell(QSize size, const QString &name, QWidget *parent)
    : QRadioButton(parent), m_size(size) {
  setAccessibleName(name);
  setToolTip(name);
}

// The whole cell, and not only where a style would draw the mark.
bool ChoiceCell::hitButton(const QPoint &position) const {
  return rect().contains(position);
}

}  // namespace lanternix
