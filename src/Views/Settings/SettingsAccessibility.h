#pragma once

namespace lanternix {

/// Teaches screen readers what kind of thing the settings' own views are.
namespace SettingsAccessibility {

/// To be called once there is an application; more calls do no harm.
void install();

}  // namespace SettingsAccessibility

}  // namespace lanternix
