#pragma once

#include <QtCore/QByteArray>

#include <memory>

namespace lanternix {

/// Which window system the program is to run on where the session offers more than one. To be kept
/// until the QGuiApplication is made: what was tried must not go away in between.
class WindowSystemChoice {
 public:
  virtual ~WindowSystemChoice() = default;

  /// Qt's name for it, as its option "-platform" takes it; empty where Qt is to choose.
  virtual QByteArray platformName() const = 0;
};

/// Chooses by the environment; what the user has chosen by QT_QPA_PLATFORM stands. Before any
/// QGuiApplication.
std::unique_ptr<WindowSystemChoice> chooseWindowSystem();

}  // namespace lanternix
