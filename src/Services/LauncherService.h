#pragma once

class QString;

namespace lanternix {

class ProcessLauncher;
class UserDefaults;
class Workspace;
struct PathItem;

/// Turns an item into an action of the operating system. Stateless; every call hands its request
/// over and returns without waiting, and none reports an error.
class LauncherService {
 public:
  LauncherService(Workspace &workspace, ProcessLauncher &processLauncher,
                  UserDefaults &userDefaults);

  /// Opens \p item: a directory in the user's file viewer, a file or a link with its default
  /// application, a command through "/bin/sh -c". The path is used exactly as stored. A link that
  /// does not parse as a URL does nothing.
  void open(const PathItem &item);

  /// Shows a directory or a file selected in its enclosing folder. Links and commands: nothing.
  void revealInFinder(const PathItem &item);

 private:
  void openInFileViewer(const QString &directory);
  void runCommand(const QString &commandLine);

  Workspace &m_workspace;
  ProcessLauncher &m_processLauncher;
  UserDefaults &m_userDefaults;
};

}  // namespace lanternix
