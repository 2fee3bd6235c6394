#pragma once

#include <QtCore/QString>

namespace lanternix {

/// What a desktop hands over when the user wants something of a program: by it the window system
/// lets the program's window come to the front, and the desktop learns that it has come. A request
/// that is made without a desktop's help, such as from a terminal, brings an empty one.
struct ActivationToken {
  /// By the rules of Wayland; empty where there is none.
  QString token;
  /// By the rules of X11, such as "menu-17-host_TIME48151623"; empty where there is none.
  QString startupId;

  /// What the desktop has started this program with, and takes it out of the environment: it is for
  /// this program alone, not for those that this one starts. To be called before the
  /// QGuiApplication is made, which keeps part of it to itself.
  static ActivationToken takeFromEnvironment();

  friend bool operator==(const ActivationToken &, const ActivationToken &) = default;
};

}  // namespace lanternix
