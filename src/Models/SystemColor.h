#pragma once

namespace lanternix {

/// The named colours: those a group can have, and cyan. Views/Style gives each its light and its
/// dark value.
enum class SystemColor { red, orange, yellow, green, blue, purple, pink, indigo, teal, cyan };

}  // namespace lanternix
