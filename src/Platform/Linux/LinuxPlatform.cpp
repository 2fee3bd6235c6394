#include "Platform/Clock.h"
#include "Platform/HotkeyRegistrar.h"
#include "Platform/Linux/ActivationMouseMonitor.h"
#include "Platform/Linux/AutostartLoginItem.h"
#include "Platform/Linux/BusSingleInstance.h"
#include "Platform/Linux/DesktopTray.h"
#include "Platform/Linux/GioWorkspace.h"
#include "Platform/Linux/HotkeyRegistrarFactory.h"
#include "Platform/Linux/LockFileSingleInstance.h"
#include "Platform/Linux/PortalAppearance.h"
#include "Platform/Linux/PosixFileManager.h"
#include "Platform/Linux/QtWindowSystem.h"
#include "Platform/Linux/SessionBusAddress.h"
#include "Platform/Linux/SignalTerminationMonitor.h"
#include "Platform/Linux/SpawnProcessLauncher.h"
#include "Platform/Linux/StatusNotifierHost.h"
#include "Platform/Linux/WaylandWindowSystemFactory.h"
#include "Platform/Linux/X11EventTime.h"
#include "Platform/Linux/X11KeyboardHold.h"
#include "Platform/Linux/X11ModalFocus.h"
#include "Platform/Linux/X11SelectionWatch.h"
#include "Platform/Linux/X11Server.h"
#include "Platform/Linux/X11WindowSystem.h"
#include "Platform/Linux/XInputMouseMonitor.h"
#include "Platform/LoginItem.h"
#include "Platform/Platform.h"
#include "Platform/UserDefaults.h"

#include <QtGui/QGuiApplication>

namespace lanternix {
namespace {

using namespace Qt::StringLiterals;

std::unique_ptr<SystemAppearance> makeSystemAppearance() {
  if (hasSessionBus()) {
    return std::make_unique<PortalAppearance>(QDBusConnection::sessionBus());
  }
  return std::make_unique<NullSystemAppearance>();
}

/// The doors that are the same on every Linux desktop.
class LinuxPlatform : public Platform {
 public:
  Doors doors() override {
    return {m_fileManager, UserDefaults::standard(), hotkeyRegistrar(),
            m_workspace,   m_processLauncher,        m_clock};
  }
  SystemAppearance &systemAppearance() override { return *m_systemAppearance; }
  LoginItem &loginItem() override { return m_loginItem; }
  SystemTray &systemTray() override {
    if (!m_systemTray) {
      auto host = hasSessionBus()
                      ? std::make_unique<StatusNotifierHost>(QDBusConnection::sessionBus())
                      : nullptr;
      m_systemTray = std::make_unique<DesktopTray>(std::move(host), makeTrayEmbedder());
    }
    return *m_systemTray;
  }

 protected:
  virtual HotkeyRegistrar &hotkeyRegistrar() = 0;
  /// The watch for a tray that embeds windows; null where there can be none.
  virtual std::unique_ptr<X11SelectionWatch> makeTrayEmbedder() const { return nullptr; }

 private:
  PosixFileManager m_fileManager;
  GioWorkspace m_workspace;
  SpawnProcessLauncher m_processLauncher;
  SystemClock m_clock;
  AutostartLoginItem m_loginItem{m_fileManager, QCoreApplication::applicationFilePath()};
  const std::unique_ptr<SystemAppearance> m_systemAppearance = makeSystemAppearance();
  std::unique_ptr<SystemTray> m_systemTray;
};

/// A program under X, be it in an X session or in a Wayland session.
class X11Platform : public LinuxPlatform {
 public:
  WindowSystem &windowSystem() override { return m_windowSystem; }
  GlobalMouseMonitor &mouseMonitor() override { return *m_mouseMonitor; }

 protected:
  HotkeyRegistrar &hotkeyRegistrar() override { return *m_hotkeyRegistrar; }
  std::unique_ptr<X11SelectionWatch> makeTrayEmbedder() const override {
    return std::make_unique<X11SelectionWatch>(m_server, "_NET_SYSTEM_TRAY_S");
  }

 private:
  std::unique_ptr<GlobalMouseMonitor> makeMouseMonitor() {
    if (m_server.isXWayland()) {
      return std::make_unique<ActivationMouseMonitor>(ActivationMouseMonitor::LossByHiding::untold);
    }
    return std::make_unique<XInputMouseMonitor>(m_server, m_eventTime);
  }

  X11Server m_server;
  X11EventTime m_eventTime;
  X11KeyboardHold m_keyboardHold{m_server};
  const std::unique_ptr<HotkeyRegistrar> m_hotkeyRegistrar =
      makeHotkeyRegistrar(m_server, m_eventTime, m_keyboardHold);
  const std::unique_ptr<GlobalMouseMonitor> m_mouseMonitor = makeMouseMonitor();
  X11WindowSystem m_windowSystem{m_server, m_eventTime, m_keyboardHold};
  X11ModalFocus m_modalFocus{m_windowSystem};
};

/// A program that speaks to the Wayland compositor itself.
class WaylandPlatform : public LinuxPlatform {
 public:
  WindowSystem &windowSystem() override { return *m_windowSystem; }
  GlobalMouseMonitor &mouseMonitor() override { return m_mouseMonitor; }

 protected:
  HotkeyRegistrar &hotkeyRegistrar() override { return *m_hotkeyRegistrar; }

 private:
  ActivationMouseMonitor m_mouseMonitor{ActivationMouseMonitor::LossByHiding::toldLate};
  const std::unique_ptr<WindowSystem> m_windowSystem = makeWaylandWindowSystem();
  const std::unique_ptr<HotkeyRegistrar> m_hotkeyRegistrar =
      makeWaylandHotkeyRegistrar(*m_windowSystem, connectForShortcuts());
};

/// Where the window system is none that we know more of than Qt does.
class PlainPlatform : public LinuxPlatform {
 public:
  WindowSystem &windowSystem() override { return m_windowSystem; }
  GlobalMouseMonitor &mouseMonitor() override { return m_mouseMonitor; }

 protected:
  HotkeyRegistrar &hotkeyRegistrar() override { return m_hotkeyRegistrar; }

 private:
  NullHotkeyRegistrar m_hotkeyRegistrar;
  NullGlobalMouseMonitor m_mouseMonitor;
  QtWindowSystem m_windowSystem;
};

}  // namespace

std::unique_ptr<Platform> Platform::create() {
  if (QGuiApplication::platformName() == "xcb"_L1) {
    return std::make_unique<X11Platform>();
  }
  if (QGuiApplication::platformName().startsWith("wayland"_L1)) {
    return std::make_unique<WaylandPlatform>();
  }
  return std::make_unique<PlainPlatform>();
}

std::unique_ptr<SingleInstance> makeSingleInstance() {
  if (BusSingleInstance::isAvailable()) {
    return std::make_unique<BusSingleInstance>();
  }
  return std::make_unique<LockFileSingleInstance>();
}

std::unique_ptr<TerminationMonitor> makeTerminationMonitor() {
  return std::make_unique<SignalTerminationMonitor>();
}

}  // namespace lanternix
