#include "Platform/Linux/BaseDirectories.h"

#include <QtCore/QByteArray>
#include <QtCore/QFile>

#include <array>
#include <pwd.h>
#include <unistd.h>

namespace lanternix::BaseDirectories {

using namespace Qt::StringLiterals;

namespace {

/// From the environment, or from the user database where the environment has none.
QByteArray homeDirectory() {
  QByteArray home = qgetenv("HOME");
  if (home.startsWith('/')) {
    return home;
  }
  std::array<char, 16384> buffer{};
  passwd entry{};
  passwd *found = nullptr;
  if (getpwuid_r(getuid(), &entry, buffer.data(), buffer.size(), &found) == 0 && found != nullptr &&
      found->pw_dir != nullptr) {
    home = found->pw_dir;
  }
  return home.startsWith('/') ? home : QByteArray();
}

QString baseDirectory(const char *variable, const QString &placeInHome) {
  const QByteArray chosen = qgetenv(variable);
  if (chosen.startsWith('/')) {
    return QFile::decodeName(chosen);
  }
  const QByteArray home = homeDirectory();
  return home.isEmpty() ? QString() : QFile::decodeName(home) + placeInHome;
}

}  // namespace

QString dataHome() {
  return baseDirectory("XDG_DATA_HOME", u"/.local/share"_s);
}

QString configHome() {
  return baseDirectory("XDG_CONFIG_HOME", u"/.config"_s);
}

QStringList configDirectories() {
  QStringList directories;
  const QList<QByteArray> chosen = qgetenv("XDG_CONFIG_DIRS").split(':');
  for (const QByteArray &directory : chosen) {
    if (directory.startsWith('/')) {
      directories.append(QFile::decodeName(directory));
    }
  }
  return directories.isEmpty() ? QStringList(u"/etc/xdg"_s) : directories;
}

}  // namespace lanternix::BaseDirectories
