#pragma once

#include <QtWidgets/QWidget>

namespace lanternix {

/// A faint line, one logical pixel high, as wide as its place without its margins.
class DividerLine : public QWidget {
  Q_OBJECT

 public:
  explicit DividerLine(QWidget *parent = nullptr);

 protected:
  void paintEvent(QPaintEvent *event) override;
};

}  // namespace lanternix
