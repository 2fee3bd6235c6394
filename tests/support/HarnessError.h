#pragma once

#include <QtCore/QString>

#include <stdexcept>

namespace lanternix {

/// What the harness throws when a session cannot be set up or driven. The message is for a person.
class HarnessError : public std::runtime_error {
 public:
  explicit HarnessError(const QString &message) : std::runtime_error(message.toStdString()) {}
};

}  // namespace lanternix
