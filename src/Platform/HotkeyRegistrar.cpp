#include "Platform/HotkeyRegistrar.h"

namespace lanternix {

bool NullHotkeyRegistrar::registerHotkey(quint32 /*keyCode*/, quint32 /*classicModifiers*/) {
  return false;
}

void NullHotkeyRegistrar::unregisterHotkey() {}

}  // namespace lanternix
