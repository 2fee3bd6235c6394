#pragma once

#include <QtWidgets/QWidget>

namespace lanternix {

class AppState;

class DataSettingsTab : public QWidget {
  Q_OBJECT

 public:
  explicit DataSettingsTab(AppState &appState, QWidget *parent = nullptr);
};

}  // namespace lanternix
