#pragma once

#include <QtCore/QString>

#include <functional>

class QDialog;
class QWidget;

namespace lanternix {

/// A question or a message over a window, which waits until it is answered.
struct Alert {
  QString title;
  /// Empty where the title says it all.
  QString message;
  /// The label of the button that carries out what the alert is about; empty for a message that
  /// has only "OK". The keyboard is with the other button at first.
  QString destructiveAction;

  /// Shows the alert over the window of \p owner, which owns it, and returns. \p confirmed is
  /// called when the user chooses the destructive action, never on Escape or "Cancel", nor once \p
  /// owner is gone.
  QDialog *show(QWidget *owner, const std::function<void()> &confirmed = {}) const;
};

}  // namespace lanternix
