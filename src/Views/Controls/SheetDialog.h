#pragma once

#include <QtWidgets/QDialog>

class QPushButton;

namespace lanternix {

class FormView;

/// An editor over a window, which waits until it is done: a title, a form, and a bar with "Cancel"
/// (Escape) and a confirming button (Return, unless another button has the keyboard).
class SheetDialog : public QDialog {
  Q_OBJECT

 public:
  /// \p size is that of the whole sheet, in logical pixels.
  SheetDialog(const QString &title, const QString &confirmation, QSize size, QWidget *window);

 Q_SIGNALS:
  /// The confirming button. Whoever saves closes the sheet with accept().
  void confirmed();

 protected:
  /// What is edited, between the title and the bar.
  FormView &form() { return *m_form; }
  /// Whether what is there can be confirmed. At first it can.
  void setConfirmable(bool confirmable);

 private:
  FormView *m_form;
  QPushButton *m_confirm;
};

}  // namespace lanternix
