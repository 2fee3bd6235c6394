#include "Platform/SystemAppearance.h"

namespace lanternix {

const Appearance &NullSystemAppearance::appearance() const {
  static const Appearance withoutPreferences;
  return withoutPreferences;
}

}  // namespace lanternix
