#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QList>
#include <QtCore/QProcessEnvironment>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include <optional>

namespace lanternix {

/// How one window manager is started so that it does the same on every machine: two desktops, focus
/// by click, no focus for windows that ask for it by themselves, Alt+Tab where it has a switcher.
struct WindowManagerRecipe {
  struct File {
    /// Below the home directory.
    QString path;
    QByteArray content;
  };

  QString program;
  QString debianPackage;
  QStringList arguments{};
  QList<File> files{};
  /// What it needs beside the usual directories of a home.
  QList<std::pair<QString, QString>> variables{};
  /// It keeps its settings with a service on the session bus.
  bool needsBus = false;
  /// It says which part of the screen is free for windows.
  bool namesWorkArea = true;
  /// It lets the user walk through the windows with Alt+Tab.
  bool hasSwitcher = true;
  /// It arranges windows side by side, so that none covers another.
  bool tiles = false;
  /// Switches to the desktop of the number that is appended; empty where the request that pagers
  /// send does it.
  QStringList switchDesktop{};
};

/// The recipe for \p name, as the program is called, to be carried out in \p home. With
/// \p compositing it blends windows itself. None for a name that is not known, or when it cannot
/// blend.
std::optional<WindowManagerRecipe> windowManagerRecipe(const QString &name, const QString &home,
                                                       bool compositing);

/// Height of the strip at the top of the screen that openbox, the default, is told to keep free.
inline constexpr int reservedStrip = 40;

}  // namespace lanternix
