#pragma once

#include "Models/PanelItemSize.h"

namespace lanternix {

/// A preference: the key under which the user defaults hold it, and what holds when they do not.
template <typename Value>
struct Preference {
  const char *key;
  Value fallback;
};

/// Every preference of the program, its type and its default. The size preferences are in logical
/// pixels and fall back below their floors too.
namespace Preferences {
inline constexpr Preference<bool> showURLs{"showURLs", true};
inline constexpr Preference<bool> showRecentItems{"showRecentItems", true};
inline constexpr Preference<PanelItemSize> panelItemSize{"panelItemSize", PanelItemSize::medium};
/// A count of files; 0 reads as the fallback.
inline constexpr Preference<qint64> backupRetentionDays{"backupRetentionDays", 15};
inline constexpr Preference<double> panelWidth{"panelWidth", 700};
inline constexpr Preference<double> panelHeight{"panelHeight", 500};
inline constexpr double panelWidthFloor = 400;
inline constexpr double panelHeightFloor = 300;
/// JSON bytes, see HotkeyShortcut; the fallback is HotkeyShortcut's default.
inline constexpr const char *globalShortcut = "globalShortcut";
/// A date; absent before the first automatic backup.
inline constexpr const char *lastBackupDate = "lastBackupDate";
/// Identifier of the application that shows directories; absent unless the user chose one.
inline constexpr const char *fileViewer = "NSFileViewer";
}  // namespace Preferences

}  // namespace lanternix
