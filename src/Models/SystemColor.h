#pragma once

namespace lanternix {

/// The named colours a group can have. Views/Style gives each its light and its dark value.
enum class SystemColor { red, orange, yellow, green, blue, purple, pink, indigo, teal };

}  // namespace lanternix
