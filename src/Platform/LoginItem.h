#pragma once

#include <QtCore/QString>

#include <optional>

namespace lanternix {

/// Whether the desktop starts the program when the user logs in. The desktop's own record is the
/// only truth: nothing is remembered here.
class LoginItem {
 public:
  enum class Status {
    notRegistered,
    /// The desktop will start the program.
    enabled,
    /// It is registered, and the user has still to allow it.
    requiresApproval,
    /// What is registered cannot be started.
    notFound,
  };

  virtual ~LoginItem() = default;

  virtual Status status() const = 0;

  /// Registers the program; harmless when it is registered already. Returns what went wrong, or
  /// nothing.
  virtual std::optional<QString> registerItem() = 0;

  /// Takes the registration back, with the same answer.
  virtual std::optional<QString> unregisterItem() = 0;
};

/// Stands where the desktop starts nothing at login: never enabled, and refuses to be.
class NullLoginItem final : public LoginItem {
 public:
  Status status() const override;
  std::optional<QString> registerItem() override;
  std::optional<QString> unregisterItem() override;
};

}  // namespace lanternix
