#include "Utilities/IconHelper.h"

#include "Models/PathItem.h"
#include "Platform/Workspace.h"

namespace lanternix {

IconHelper::Icon IconHelper::icon(const PathItem &item) const {
  Icon icon{.names = {}, .symbol = systemImage(item.type)};
  switch (item.type) {
    case ItemType::directory:
      icon.names = m_workspace.iconNamesForFolders();
      break;
    case ItemType::file:
      icon.names = m_workspace.iconNamesForFile(item.path);
      if (icon.names.isEmpty()) {
        icon.names = m_workspace.iconNamesForAnyFile();
      }
      break;
    case ItemType::link:
    case ItemType::command:
      break;
  }
  return icon;
}

}  // namespace lanternix
