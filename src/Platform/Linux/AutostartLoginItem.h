#pragma once

#include "Platform/LoginItem.h"

#include <QtCore/QStringList>

namespace lanternix {

class FileManager;

/// The start at login by an entry in the user's autostart directory,
/// `$XDG_CONFIG_HOME/autostart/org.lanternix.Lanternix.desktop`, which every desktop carries out.
/// The user's entry takes the place of one that the administrator has put into an autostart
/// directory of the system.
class AutostartLoginItem : public LoginItem {
 public:
  /// \p program is this program's file. The entry names it by the path at which it is found on the
  /// PATH, which stays when a new version comes, else by its own.
  AutostartLoginItem(const FileManager &fileManager, QString program);

  Status status() const override;
  std::optional<QString> registerItem() override;
  std::optional<QString> unregisterItem() override;

 private:
  QString userEntry() const;
  /// The entry that goes where the user has none; empty without one.
  QString systemEntry() const;

  const FileManager &m_fileManager;
  const QString m_program;
};

}  // namespace lanternix
