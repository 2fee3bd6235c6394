#include "Views/Controls/Stepper.h"

#include <QtGui/QWheelEvent>
#include <QtWidgets/QLineEdit>

#include <utility>

using namespace Qt::StringLiterals;

namespace lanternix {

namespace {

/// The digits at the start of \p text, whatever blanks stand before them.
QStringView leadingNumber(QStringView text) {
  text = text.trimmed();
  qsizetype length = 0;
  while (length < text.size() && text[length] >= u'0' && text[length] <= u'9') {
    ++length;
  }
  return text.first(length);
}

}  // namespace

Stepper::Stepper(const QString &name, QString unit, int minimum, int maximum, QWidget *parent)
    : QSpinBox(parent), m_unit(std::move(unit)) {
  setAccessibleName(name);
  setRange(minimum, maximum);
  setKeyboardTracking(false);
  setFocusPolicy(Qt::StrongFocus);
}

QString Stepper::textFromValue(int value) const {
  return QString::number(value) + u' ' + m_unit + (value == 1 ? QString() : u"s"_s);
}

int Stepper::valueFromText(const QString &text) const {
  return leadingNumber(text).toInt();
}

QValidator::State Stepper::validate(QString &input, int & /*position*/) const {
  const QStringView number = leadingNumber(input);
  const QStringView trimmed = QStringView(input).trimmed();
  const QStringView rest = trimmed.sliced(number.size()).trimmed();
  if (!QString(m_unit + u's').startsWith(rest)) {
    return QValidator::Invalid;
  }
  if (number.isEmpty()) {
    return QValidator::Intermediate;
  }
  bool isNumber = false;
  const int value = number.toInt(&isNumber);
  if (!isNumber || value > maximum()) {
    return QValidator::Invalid;
  }
  return value < minimum() ? QValidator::Intermediate : QValidator::Acceptable;
}

void Stepper::wheelEvent(QWheelEvent *event) {
  event->ignore();
}

/// Whether there is a number that is not finished yet.
bool Stepper::isBeingTyped() const {
  return lineEdit()->isModified();
}

// The spin box takes each of the next three for the end of the typing. Where the window or a menu
// has the keyboard for a while, it comes back to the same place in the same text.

void Stepper::focusOutEvent(QFocusEvent *event) {
  const bool comesBack =
      event->reason() == Qt::ActiveWindowFocusReason || event->reason() == Qt::PopupFocusReason;
  if (comesBack && isBeingTyped()) {
    lineEdit()->event(event);  // where the caret stops
    QWidget::focusOutEvent(event);
    return;
  }
  QSpinBox::focusOutEvent(event);
}

void Stepper::changeEvent(QEvent *event) {
  if (event->type() == QEvent::ActivationChange && isBeingTyped()) {
    QWidget::changeEvent(event);
    return;
  }
  QSpinBox::changeEvent(event);
}

void Stepper::hideEvent(QHideEvent *event) {
  if (!isBeingTyped()) {
    QSpinBox::hideEvent(event);
    return;
  }
  QWidget::hideEvent(event);
  const bool isMinimized = event->spontaneous();
  if (!isMinimized) {
    // Not at once: a window that goes for good must not make anybody act any more.
    QMetaObject::invokeMethod(this, &Stepper::interpretText, Qt::QueuedConnection);
  }
}

}  // namespace lanternix
