#pragma once

#include <QtWidgets/QWidget>

namespace lanternix {

class AppState;

class GroupsSettingsTab : public QWidget {
  Q_OBJECT

 public:
  explicit GroupsSettingsTab(AppState &appState, QWidget *parent = nullptr);
};

}  // namespace lanternix
