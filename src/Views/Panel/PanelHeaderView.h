#pragma once

#include <QtWidgets/QWidget>

namespace lanternix {

/// The panel's top: the program's mark, its name and the settings button.
class PanelHeaderView : public QWidget {
  Q_OBJECT

 public:
  explicit PanelHeaderView(QWidget *parent = nullptr);

 Q_SIGNALS:
  /// The button has been pressed.
  void settingsRequested();
};

}  // namespace lanternix
