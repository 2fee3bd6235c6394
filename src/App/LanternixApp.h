#pragma once

namespace lanternix {

/// The program: sets up the application, sees to it that one runs per session, and hands over to
/// AppDelegate.
class LanternixApp {
 public:
  /// Runs the program until it quits; returns its exit status. Takes no options.
  static int run(int argc, char **argv);
};

}  // namespace lanternix
