#pragma once

#include "Views/Settings/FileChooser.h"

namespace lanternix {

/// Asks by the desktop's own dialog, or by Qt's where there is none.
class DesktopFileChooser : public FileChooser {
 public:
  /// The one of the program, which views ask unless they are given another.
  static DesktopFileChooser &shared();

  void choose(const Request &request, QWidget *window, const Chosen &chosen) override;
};

}  // namespace lanternix
