#include "Utilities/LoginItemHelper.h"

#include "Platform/LoginItem.h"

#include <cstdio>

namespace lanternix::LoginItemHelper {

void setEnabled(LoginItem &loginItem, bool enabled) {
  const std::optional<QString> error =
      enabled ? loginItem.registerItem() : loginItem.unregisterItem();
  if (error) {
    std::printf("Login item error: %s\n", error->toLocal8Bit().constData());
    std::fflush(stdout);  // at once, also into a file or a journal
  }
}

}  // namespace lanternix::LoginItemHelper
