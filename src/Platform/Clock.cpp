#include "Platform/Clock.h"

namespace lanternix {

Date SystemClock::now() const {
  return Date::fromUnixMilliseconds(QDateTime::currentMSecsSinceEpoch());
}

}  // namespace lanternix
