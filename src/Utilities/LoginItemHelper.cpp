#include "Utilities/LoginItemHelper.h"

#include "Platform/LoginItem.h"

#include <QtCore/QTextStream>

namespace lanternix::LoginItemHelper {

void setEnabled(LoginItem &loginItem, bool enabled) {
  const std::optional<QString> error =
      enabled ? loginItem.registerItem() : loginItem.unregisterItem();
  if (error) {
    QTextStream(stdout) << "Login item error: " << *error << Qt::endl;
  }
}

}  // namespace lanternix::LoginItemHelper
