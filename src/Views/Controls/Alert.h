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

  /// Shows the alert over \p window and returns; \p window owns it. \p confirmed is called when the
  /// user chooses the destructive action, never on Escape, "Cancel" or the window's end.
  QDialog *show(QWidget *window, const std::function<void()> &confirmed = {}) const;
};

}  // namespace lanternix
