#pragma once

#include "App/AppState.h"

#include <QtCore/QObject>
#include <QtCore/QRect>

#include <memory>

class QKeyEvent;

namespace lanternix {

class FloatingPanel;
class GlobalMouseMonitor;
class LocalKeyMonitor;
class WindowSystem;

/// The program's top: owns the store and the panel, shows and hides the panel, hands its keys to
/// the store, hides it on a press elsewhere and remembers its size.
class AppDelegate : public QObject {
  Q_OBJECT

 public:
  /// Makes the store, which reads the data and registers the shortcut.
  AppDelegate(const Doors &doors, WindowSystem &windowSystem, GlobalMouseMonitor &mouseMonitor,
              QObject *parent = nullptr);
  ~AppDelegate() override;

  AppState &appState() { return m_appState; }

  /// Builds the panel and shows it 0.3 seconds later.
  void applicationDidFinishLaunching();

  /// Shows the panel in its stored size on the screen the user works on, with the keyboard. Before
  /// applicationDidFinishLaunching(): nothing.
  void showPanel();

 private:
  void setupPanel();
  void togglePanel();
  void hideOnPressOutside();
  void storePanelSize();
  bool handleKey(const QKeyEvent &press);
  /// The panel's frame on a work area: in the middle, 60 pixels up.
  QRect panelFrame(const QRect &workArea) const;

  UserDefaults &m_userDefaults;
  WindowSystem &m_windowSystem;
  GlobalMouseMonitor &m_mouseMonitor;
  AppState m_appState;
  std::unique_ptr<FloatingPanel> m_panel;
  std::unique_ptr<LocalKeyMonitor> m_keyMonitor;
};

}  // namespace lanternix
