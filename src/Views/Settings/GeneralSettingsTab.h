#pragma once

#include "Views/Controls/FormView.h"

namespace lanternix {

class AppState;
class LoginItem;
class SegmentedPicker;
class ToggleSwitch;

/// The preferences: the shortcut, what the panel shows and how large, and the start at login. Every
/// control writes at once and follows changes made elsewhere.
class GeneralSettingsTab : public FormView {
  Q_OBJECT

 public:
  GeneralSettingsTab(AppState &appState, LoginItem &loginItem, QWidget *parent = nullptr);

 protected:
  void showEvent(QShowEvent *event) override;
  bool event(QEvent *event) override;

 private:
  void addShortcut();
  void addPanelDisplay();
  void addStartup();
  void fitItemSize();
  void readItemSize();
  void readLoginItem();

  AppState &m_appState;
  LoginItem &m_loginItem;
  SegmentedPicker *m_itemSize = nullptr;
  ToggleSwitch *m_launchAtLogin = nullptr;
};

}  // namespace lanternix
