#pragma once

#include "Platform/Doors.h"

#include <memory>

namespace lanternix {

class GlobalMouseMonitor;
class LoginItem;
class SingleInstance;
class SystemAppearance;
class SystemTray;
class TerminationMonitor;
class WindowSystem;

/// Every door of the program, as the present session offers it. A null object stands where the
/// session offers none.
class Platform {
 public:
  /// Chooses by the window system that Qt runs on: only with a QGuiApplication.
  static std::unique_ptr<Platform> create();
  virtual ~Platform() = default;

  /// What the store and its services go through.
  virtual Doors doors() = 0;
  virtual WindowSystem &windowSystem() = 0;
  virtual GlobalMouseMonitor &mouseMonitor() = 0;
  virtual SystemAppearance &systemAppearance() = 0;
  virtual LoginItem &loginItem() = 0;
  /// Nobody asks for a tray before the first call.
  virtual SystemTray &systemTray() = 0;
};

/// The guard of the session's one program. Apart from the others, because it is asked before
/// anything else is made. Only with a QCoreApplication.
std::unique_ptr<SingleInstance> makeSingleInstance();

/// The ear for the system's wish that the program end; from when it is made, the program is no
/// longer ended without warning. Only with a QCoreApplication.
std::unique_ptr<TerminationMonitor> makeTerminationMonitor();

}  // namespace lanternix
