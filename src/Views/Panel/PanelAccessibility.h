#pragma once

namespace lanternix {

/// Teaches screen readers the panel's own views, of which Qt knows no more than that they are
/// widgets.
class PanelAccessibility {
 public:
  /// To be called once there is an application; more calls do no harm.
  static void install();
};

}  // namespace lanternix
