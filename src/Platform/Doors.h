#pragma once

namespace lanternix {

class Clock;
class FileManager;
class HotkeyRegistrar;
class ProcessLauncher;
class UserDefaults;
class Workspace;

/// The doors to the operating system that the store and its services go through. Whoever makes a
/// store keeps what these refer to alive longer than it.
struct Doors {
  FileManager &fileManager;
  UserDefaults &userDefaults;
  HotkeyRegistrar &hotkeyRegistrar;
  Workspace &workspace;
  ProcessLauncher &processLauncher;
  Clock &clock;
};

}  // namespace lanternix
