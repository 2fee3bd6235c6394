#pragma once

#include <QtWidgets/QSpinBox>

namespace lanternix {

/// A whole number of things, stepped by its buttons and the arrow keys or typed.
///
/// valueChanged() tells of a typed number when it is finished (Return, the keyboard goes to another
/// control, or the stepper is hidden): on the way to "30" nobody means 3, nor does who looks
/// something up in another window before typing on. The wheel changes nothing, since it is meant
/// for the page under the pointer.
class Stepper : public QSpinBox {
  Q_OBJECT

 public:
  /// \p unit is the name of one thing; an "s" makes it the name of several. \p name is what the
  /// stepper is called for who cannot see its label.
  Stepper(const QString &name, QString unit, int minimum, int maximum, QWidget *parent = nullptr);

 protected:
  QString textFromValue(int value) const override;
  int valueFromText(const QString &text) const override;
  QValidator::State validate(QString &input, int &position) const override;
  void wheelEvent(QWheelEvent *event) override;
  void focusOutEvent(QFocusEvent *event) override;
  void changeEvent(QEvent *event) override;
  void hideEvent(QHideEvent *event) override;

 private:
  bool isBeingTyped() const;

  QString m_unit;
};

}  // namespace lanternix
