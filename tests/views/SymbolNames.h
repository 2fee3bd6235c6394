#pragma once

#include <array>

namespace lanternix {

/// Every symbol the program names: those of the panel, of the settings, and the choices of the
/// group editor, each once, in the order of the alphabet.
inline constexpr std::array symbolNames{
    "arrow.right",
    "arrow.triangle.branch",
    "book",
    "book.fill",
    "briefcase",
    "briefcase.fill",
    "building.2",
    "checkmark",
    "chevron.down",
    "chevron.left.forwardslash.chevron.right",
    "chevron.right",
    "clock.fill",
    "cpu",
    "desktopcomputer",
    "display",
    "doc.fill",
    "doc.text",
    "exclamationmark.triangle.fill",
    "externaldrive",
    "folder",
    "folder.badge.plus",
    "folder.fill",
    "gamecontroller",
    "gamecontroller.fill",
    "gear",
    "gearshape",
    "globe",
    "globe.americas",
    "hammer",
    "hammer.fill",
    "heart",
    "heart.fill",
    "house",
    "info.circle",
    "line.3.horizontal",
    "magnifyingglass",
    "minus",
    "music.note",
    "pencil",
    "person",
    "photo",
    "plus",
    "record.circle",
    "scope",
    "sidebar.left",
    "star",
    "star.fill",
    "terminal",
    "tray",
    "wrench",
    "wrench.fill",
    "xmark.circle.fill",
};

/// Symbols that are bare strokes rather than pictures of things; they carry less ink by nature.
inline constexpr std::array markNames{
    "arrow.right",   "checkmark",         "chevron.down", "chevron.left.forwardslash.chevron.right",
    "chevron.right", "line.3.horizontal", "minus",        "plus",
};

}  // namespace lanternix
