#pragma once

#include <QtCore/QLatin1StringView>

namespace lanternix {

/// By which desktops know the program: the name of its desktop entry, of its icon and on the bus.
inline constexpr QLatin1StringView applicationId("org.lanternix.Lanternix");

/// The object on the bus that takes requests, whose path follows from the name there.
inline constexpr QLatin1StringView applicationPath("/org/lanternix/Lanternix");

}  // namespace lanternix
