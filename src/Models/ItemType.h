#pragma once

#include "Models/SystemColor.h"

#include <QtCore/QString>

#include <array>
#include <optional>

namespace lanternix {

/// The kind of an item: what its path means and how it opens.
enum class ItemType { directory, file, link, command };

/// Every kind, in the order in which pickers list them.
inline constexpr std::array allItemTypes{ItemType::directory, ItemType::file, ItemType::link,
                                         ItemType::command};

/// The text that stands for \p type in the data document: "directory", "file", "link", "command".
QString rawValue(ItemType type);

/// The kind that \p rawValue stands for; none for any other text (case matters).
std::optional<ItemType> itemTypeFromRawValue(QAnyStringView rawValue);

/// The kind's name as people read it, such as "Directory".
QString displayName(ItemType type);

/// The name of the symbol that stands for the kind, such as "folder.fill".
QString systemImage(ItemType type);

/// The colour of that symbol where it has one of its own.
SystemColor colorOf(ItemType type);

/// What people call the path of an item of the kind: "Path", "URL", "Command".
QString locationName(ItemType type);

/// What is wrong with an item of the kind that is not valid, such as "not found".
QString defectName(ItemType type);

}  // namespace lanternix
