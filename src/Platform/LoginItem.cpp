#include "Platform/LoginItem.h"

namespace lanternix {

using namespace Qt::StringLiterals;

LoginItem::Status NullLoginItem::status() const {
  return Status::notRegistered;
}

std::optional<QString> NullLoginItem::registerItem() {
  return u"this system starts no programs at login"_s;
}

std::optional<QString> NullLoginItem::unregisterItem() {
  return std::nullopt;
}

}  // namespace lanternix
