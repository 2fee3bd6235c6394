#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>

/// The user's base directories, which are freedesktop.org's: the environment's word where it is an
/// absolute path, else the usual place in the home directory. Empty when the user has no home
/// directory. None of them need exist.
namespace lanternix::BaseDirectories {

/// Normally ~/.local/share.
QString dataHome();

/// Normally ~/.config.
QString configHome();

/// Where the system keeps settings for all users, the most important place first. Normally
/// /etc/xdg.
QStringList configDirectories();

}  // namespace lanternix::BaseDirectories
