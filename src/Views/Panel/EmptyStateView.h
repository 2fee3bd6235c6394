#pragma once

#include <QtWidgets/QWidget>

class QPushButton;

namespace lanternix {

/// What the panel says while there is nothing to list, with the way to change that.
class EmptyStateView : public QWidget {
  Q_OBJECT

 public:
  explicit EmptyStateView(QWidget *parent = nullptr);

 Q_SIGNALS:
  /// The button has been pressed.
  void settingsRequested();

 protected:
  void changeEvent(QEvent *event) override;

 private:
  void updateButton();

  QPushButton *m_button;
};

}  // namespace lanternix
