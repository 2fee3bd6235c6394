#pragma once

#include "Platform/Linux/PosixFileManager.h"

namespace lanternix {

/// The real file system of a user for whose data there is no place.
class HomelessFileManager final : public PosixFileManager {
 public:
  QString applicationSupportDirectory() const override { return {}; }
};

}  // namespace lanternix
