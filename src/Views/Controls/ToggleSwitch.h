#pragma once

#include <QtWidgets/QAbstractButton>

class QVariantAnimation;

namespace lanternix {

/// A switch: on or off, at once in effect. Its knob slides when the user turns it.
class ToggleSwitch : public QAbstractButton {
  Q_OBJECT

 public:
  /// \p name is what the switch is called for who cannot see its label.
  explicit ToggleSwitch(const QString &name, QWidget *parent = nullptr);

  QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent *event) override;
  void nextCheckState() override;
  void checkStateSet() override;

 private:
  /// Where the knob is, 0 (off) to 1 (on).
  double position() const;

  QVariantAnimation *m_slide;
};

}  // namespace lanternix
