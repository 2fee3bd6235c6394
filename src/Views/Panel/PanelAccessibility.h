#pragma once

class QLayout;

namespace lanternix {

/// Teaches screen readers the panel's own views, of which Qt knows no more than that they are
/// widgets.
class PanelAccessibility {
 public:
  /// To be called once there is an application; more calls do no harm.
  static void install();

  /// Lets readers come through the widgets of a finished layout in its order instead of the order
  /// in which they were made. The widgets must not overlap.
  static void readInOrderOf(const QLayout &layout);
};

}  // namespace lanternix
