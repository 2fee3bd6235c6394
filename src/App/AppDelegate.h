#pragma once

#include "App/AppState.h"
#include "Views/Settings/DesktopFileChooser.h"

#include <QtCore/QObject>
#include <QtCore/QRect>
#include <QtCore/QTimer>

#include <memory>

class QKeyEvent;
class QScreen;

namespace lanternix {

class FloatingPanel;
class GlobalMouseMonitor;
class LocalKeyMonitor;
class LoginItem;
class PopupPanelView;
class SettingsView;
class WindowSystem;

/// The program's top: owns the store, the panel and the settings window, shows and hides the panel,
/// hands its keys to the store, hides it on a press elsewhere and remembers its size.
class AppDelegate : public QObject {
  Q_OBJECT

 public:
  /// Makes the store, which reads the data and registers the shortcut.
  AppDelegate(const Doors &doors, WindowSystem &windowSystem, GlobalMouseMonitor &mouseMonitor,
              LoginItem &loginItem, QObject *parent = nullptr);
  ~AppDelegate() override;

  AppState &appState() { return m_appState; }

  /// Builds the panel and shows it 0.3 seconds later, unless somebody asks for it or for the
  /// settings before.
  void applicationDidFinishLaunching();

  /// Shows the panel in its stored size on the screen the user works on, with the keyboard. Before
  /// applicationDidFinishLaunching(): nothing.
  void showPanel();

  /// Hides the panel when it is on the screen, else shows it. Before
  /// applicationDidFinishLaunching(): nothing.
  void togglePanel();

  /// Hides the panel and shows the settings window in front, with the keyboard.
  void openSettings();

 private:
  void setupPanel();
  void hideOnPressOutside();
  void placePanel(const QScreen *screen);
  void watchScreen(QScreen *screen);
  void followScreen(const QScreen *screen);
  void followWorkArea(const QScreen *screen);
  void storePanelSize();
  bool handleKey(const QKeyEvent &press);
  /// The panel's frame on a work area: in the middle, 60 pixels up.
  QRect panelFrame(const QRect &workArea) const;

  UserDefaults &m_userDefaults;
  WindowSystem &m_windowSystem;
  GlobalMouseMonitor &m_mouseMonitor;
  LoginItem &m_loginItem;
  AppState m_appState;
  QTimer m_firstShow;
  std::unique_ptr<FloatingPanel> m_panel;
  PopupPanelView *m_content = nullptr;  ///< the panel's
  std::unique_ptr<LocalKeyMonitor> m_keyMonitor;
  DesktopFileChooser m_fileChooser;
  /// Made when it is first opened.
  std::unique_ptr<SettingsView> m_settings;
};

}  // namespace lanternix
