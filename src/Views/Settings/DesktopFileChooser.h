#pragma once

#include "Views/Settings/FileChooser.h"

namespace lanternix {

/// Asks by the desktop's own dialog, or by Qt's where there is none.
class DesktopFileChooser : public FileChooser {
 public:
  void choose(const Request &request, QWidget *owner, const Chosen &chosen) override;
};

}  // namespace lanternix
