#include "Models/ItemType.h"

namespace lanternix {

using namespace Qt::StringLiterals;

QString rawValue(ItemType type) {
  switch (type) {
    case ItemType::directory:
      return u"directory"_s;
    case ItemType::file:
      return u"file"_s;
    case ItemType::link:
      return u"link"_s;
    case ItemType::command:
      return u"command"_s;
  }
  Q_UNREACHABLE();
}

std::optional<ItemType> itemTypeFromRawValue(QAnyStringView rawValue) {
  if (rawValue == "directory"_L1) {
    return ItemType::directory;
  }
  if (rawValue == "file"_L1) {
    return ItemType::file;
  }
  if (rawValue == "link"_L1) {
    return ItemType::link;
  }
  if (rawValue == "command"_L1) {
    return ItemType::command;
  }
  return {};
}

QString displayName(ItemType type) {
  switch (type) {
    case ItemType::directory:
      return u"Directory"_s;
    case ItemType::file:
      return u"File"_s;
    case ItemType::link:
      return u"Link"_s;
    case ItemType::command:
      return u"Command"_s;
  }
  Q_UNREACHABLE();
}

QString systemImage(ItemType type) {
  switch (type) {
    case ItemType::directory:
      return u"folder.fill"_s;
    case ItemType::file:
      return u"doc.fill"_s;
    case ItemType::link:
      return u"globe"_s;
    case ItemType::command:
      return u"terminal"_s;
  }
  Q_UNREACHABLE();
}

SystemColor colorOf(ItemType type) {
  switch (type) {
    case ItemType::directory:
      return SystemColor::blue;
    case ItemType::file:
      return SystemColor::purple;
    case ItemType::link:
      return SystemColor::cyan;
    case ItemType::command:
      return SystemColor::orange;
  }
  Q_UNREACHABLE();
}

QString locationName(ItemType type) {
  switch (type) {
    case ItemType::directory:
    case ItemType::file:
      return u"Path"_s;
    case ItemType::link:
      return u"URL"_s;
    case ItemType::command:
      return u"Command"_s;
  }
  Q_UNREACHABLE();
}

QString defectName(ItemType type) {
  switch (type) {
    case ItemType::directory:
    case ItemType::file:
      return u"not found"_s;
    case ItemType::link:
      return u"not a valid address"_s;
    case ItemType::command:
      return u"empty command"_s;
  }
  Q_UNREACHABLE();
}

}  // namespace lanternix
