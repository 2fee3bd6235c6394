#pragma once

#include "Models/SystemColor.h"

#include <QtWidgets/QRadioButton>

namespace lanternix {

/// One colour among those that a group can have.
class ColorCell : public QRadioButton {
  Q_OBJECT

 public:
  ColorCell(SystemColor color, const QString &name, QWidget *parent = nullptr);

  QSize sizeHint() const override;

 protected:
  bool hitButton(const QPoint &position) const override;
  void paintEvent(QPaintEvent *event) override;

 private:
  SystemColor m_color;
};

}  // namespace lanternix
