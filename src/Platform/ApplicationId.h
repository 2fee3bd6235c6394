#pragma once

#include <QtCore/QLatin1StringView>

namespace lanternix {

/// By which desktops know the program: the name of its desktop entry, of its icon and on the bus.
inline constexpr QLatin1StringView applicationId("org.lanternix.Lanternix");

}  // namespace lanternix
