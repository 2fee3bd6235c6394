#include "Platform/LoginItem.h"

using namespace Qt::StringLiterals;

namespace lanternix {

LoginItem::Status NullLoginItem::status() const {
  return Status::notFound;
}

std::optional<QString> NullLoginItem::registerItem() {
  return u"this desktop starts no programs at login"_s;
}

std::optional<QString> NullLoginItem::unregisterItem() {
  return std::nullopt;
}

}  // namespace lanternix
