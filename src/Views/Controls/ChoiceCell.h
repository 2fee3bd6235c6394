#pragma once

#include <QtWidgets/QRadioButton>

namespace lanternix {

/// One cell of a ChoiceGrid, of a fixed size. A radio button, so that keys and screen readers take
/// it for what it is; what it looks like is for those to say who derive from it.
class ChoiceCell : public QRadioButton {
  Q_OBJECT

 public:
  /// \p name is what the cell stands for, in words; it is also the tooltip.
  ChoiceCell(QSize size, const QString &name, QWidget *parent = nullptr);

  QSize sizeHint() const override { return m_size; }

 protected:
  bool hitButton(const QPoint &position) const override;
  void paintEvent(QPaintEvent *event) override = 0;

 private:
  QSize m_size;
};

}  // namespace lanternix
