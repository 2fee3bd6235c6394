#pragma once

#include <QtGui/QIcon>

namespace lanternix {

/// The program's icon: a lit lantern, drawn as it is asked for, sharp at any size. Up to 32 pixels
/// it comes from a drawing of its own, whose lines fall on whole pixels.
///
/// The sizes it names as available are those a window hands to its window system, a copy for every
/// window and menu; they end at 128 pixels, beyond which the copies would be megabytes.
QIcon applicationIcon();

}  // namespace lanternix
