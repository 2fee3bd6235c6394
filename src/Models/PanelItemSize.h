#pragma once

#include <QtCore/QString>

#include <array>
#include <optional>

namespace lanternix {

/// Density of the panel's rows. The views choose their measures from it.
enum class PanelItemSize { small, medium, large };

/// Every density, in the order in which pickers list them.
inline constexpr std::array allPanelItemSizes{PanelItemSize::small, PanelItemSize::medium,
                                              PanelItemSize::large};

/// The text that stands for \p size in the preferences: "small", "medium", "large".
QString rawValue(PanelItemSize size);

/// The density that \p rawValue stands for; none for any other text (case matters).
std::optional<PanelItemSize> panelItemSizeFromRawValue(QStringView rawValue);

}  // namespace lanternix
