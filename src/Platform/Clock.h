#pragma once

#include "Models/Date.h"

namespace lanternix {

/// The present moment. Tests set their own.
class Clock {
 public:
  virtual ~Clock() = default;
  virtual Date now() const = 0;
};

/// The system's clock.
class SystemClock : public Clock {
 public:
  Date now() const override;
};

}  // namespace lanternix
