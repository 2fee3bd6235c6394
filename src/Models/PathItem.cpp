#include "Models/PathItem.h"

#include "Models/Blanks.h"
#include "Models/LinkText.h"

#include <QtCore/QFile>
#include <QtCore/QHashFunctions>

#include <filesystem>

namespace lanternix {

namespace {
/// Asks the system itself: Qt's file classes would also find the resources compiled into the
/// program behind a path such as ":/icons".
bool fileExists(const QString &path) {
  if (path.contains(QChar::Null)) {
    return false;  // the system would see only what stands before it
  }
  std::error_code ignored;
  return std::filesystem::exists(QFile::encodeName(path).toStdString(), ignored);
}
}  // namespace

bool PathItem::isValid() const {
  switch (type) {
    case ItemType::directory:
    case ItemType::file:
      return fileExists(path);
    case ItemType::link:
      return parsesAsUrl(path);
    case ItemType::command:
      return !trimmedBlanks(path).isEmpty();
  }
  Q_UNREACHABLE();
}

size_t qHash(const PathItem &item, size_t seed) noexcept {
  return qHashMulti(seed, item.id, item.name, item.path, static_cast<int>(item.type), item.groupId,
                    item.dateAdded, item.lastAccessed.has_value(),
                    item.lastAccessed.value_or(Date{}), item.order);
}

}  // namespace lanternix
