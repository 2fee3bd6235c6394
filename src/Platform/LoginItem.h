#pragma once

#include <QtCore/QString>

#include <optional>

namespace lanternix {

/// The program among those that start when the user logs in. The desktop's own record is the only
/// truth: nothing is remembered here, and whoever shows the status asks for it anew.
class LoginItem {
 public:
  enum class Status {
    /// The desktop has no order to start the program, or one to leave it out.
    notRegistered,
    /// The program starts at the next login.
    enabled,
    /// It is registered, but the desktop has been told not to start it here.
    requiresApproval,
    /// What is registered is something else than this program, or nothing that could be started.
    notFound,
  };

  virtual ~LoginItem() = default;

  virtual Status status() const = 0;

  /// Has the program started at every login, whatever was registered before. Returns what went
  /// wrong, for a person to read; nothing when all went well.
  [[nodiscard]] virtual std::optional<QString> registerItem() = 0;

  /// Has it started no longer. Not registered: nothing. Returns as registerItem().
  [[nodiscard]] virtual std::optional<QString> unregisterItem() = 0;
};

/// Stands where the system starts no programs at login.
class NullLoginItem : public LoginItem {
 public:
  Status status() const override;
  std::optional<QString> registerItem() override;
  std::optional<QString> unregisterItem() override;
};

}  // namespace lanternix
