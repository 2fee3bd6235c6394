#include "Platform/KeyCodes.h"

#include <algorithm>
#include <array>

namespace lanternix::KeyCodes {
namespace {

/// Key symbols are numbers that the X protocol fixes; these are the ones of named keys.
namespace Symbol {
constexpr quint32 position = 0;  // no named key: goes by its position
constexpr quint32 space = 0x20;
constexpr quint32 backSpace = 0xff08;
constexpr quint32 tab = 0xff09;
constexpr quint32 returnKey = 0xff0d;
constexpr quint32 escape = 0xff1b;
constexpr quint32 home = 0xff50;
constexpr quint32 left = 0xff51;
constexpr quint32 up = 0xff52;
constexpr quint32 right = 0xff53;
constexpr quint32 down = 0xff54;
constexpr quint32 pageUp = 0xff55;
constexpr quint32 pageDown = 0xff56;
constexpr quint32 end = 0xff57;
constexpr quint32 insert = 0xff63;
constexpr quint32 help = 0xff6a;
constexpr quint32 deleteKey = 0xffff;
constexpr quint32 f1 = 0xffbe;  // F2 to F20 follow
constexpr quint32 volumeDown = 0x1008ff11;
constexpr quint32 volumeMute = 0x1008ff12;
constexpr quint32 volumeUp = 0x1008ff13;
constexpr quint32 leftTab = 0xfe20;
constexpr quint32 noBreakSpace = 0xa0;
constexpr quint32 narrowNoBreakSpace = 0x0100202f;
constexpr quint32 firstMedia = 0x10080000;
constexpr quint32 lastMedia = 0x1008ffff;
constexpr quint32 firstLevelSwitch = 0xfe01;  // ISO_Lock to ISO_Level5_Lock
constexpr quint32 lastLevelSwitch = 0xfe13;
constexpr quint32 modeSwitch = 0xff7e;
constexpr quint32 firstModifier = 0xffe1;  // Shift_L to Hyper_R
constexpr quint32 lastModifier = 0xffee;
}  // namespace Symbol

constexpr quint32 functionKey(quint32 number) {
  return Symbol::f1 + number - 1;
}

constexpr quint32 firstXKeyCode = 8;  // an X key code is an evdev code plus this

constexpr std::array keys{
    // Letters, A to Z.
    Key{0, 30, Symbol::position},
    Key{11, 48, Symbol::position},
    Key{8, 46, Symbol::position},
    Key{2, 32, Symbol::position},
    Key{14, 18, Symbol::position},
    Key{3, 33, Symbol::position},
    Key{5, 34, Symbol::position},
    Key{4, 35, Symbol::position},
    Key{34, 23, Symbol::position},
    Key{38, 36, Symbol::position},
    Key{40, 37, Symbol::position},
    Key{37, 38, Symbol::position},
    Key{46, 50, Symbol::position},
    Key{45, 49, Symbol::position},
    Key{31, 24, Symbol::position},
    Key{35, 25, Symbol::position},
    Key{12, 16, Symbol::position},
    Key{15, 19, Symbol::position},
    Key{1, 31, Symbol::position},
    Key{17, 20, Symbol::position},
    Key{32, 22, Symbol::position},
    Key{9, 47, Symbol::position},
    Key{13, 17, Symbol::position},
    Key{7, 45, Symbol::position},
    Key{16, 21, Symbol::position},
    Key{6, 44, Symbol::position},
    // Digits, 0 to 9.
    Key{29, 11, Symbol::position},
    Key{18, 2, Symbol::position},
    Key{19, 3, Symbol::position},
    Key{20, 4, Symbol::position},
    Key{21, 5, Symbol::position},
    Key{23, 6, Symbol::position},
    Key{22, 7, Symbol::position},
    Key{26, 8, Symbol::position},
    Key{28, 9, Symbol::position},
    Key{25, 10, Symbol::position},
    // Punctuation: minus, equals, brackets, semicolon, apostrophe, comma, full stop, slash,
    // backslash, grave accent, and the extra key of ISO keyboards.
    Key{27, 12, Symbol::position},
    Key{24, 13, Symbol::position},
    Key{33, 26, Symbol::position},
    Key{30, 27, Symbol::position},
    Key{41, 39, Symbol::position},
    Key{39, 40, Symbol::position},
    Key{comma, 51, Symbol::position},
    Key{47, 52, Symbol::position},
    Key{44, 53, Symbol::position},
    Key{42, 43, Symbol::position},
    Key{50, 41, Symbol::position},
    Key{10, 86, Symbol::position},
    // Special keys.
    Key{space, 57, Symbol::space},
    Key{returnKey, 28, Symbol::returnKey},
    Key{48, 15, Symbol::tab},
    Key{51, 14, Symbol::backSpace},
    Key{escape, 1, Symbol::escape},
    // Arrows and their neighbours: left, right, down, up, Home, End, Page Up, Page Down, Delete,
    // Insert.
    Key{123, 105, Symbol::left},
    Key{124, 106, Symbol::right},
    Key{downArrow, 108, Symbol::down},
    Key{upArrow, 103, Symbol::up},
    Key{115, 102, Symbol::home},
    Key{119, 107, Symbol::end},
    Key{116, 104, Symbol::pageUp},
    Key{121, 109, Symbol::pageDown},
    Key{117, 111, Symbol::deleteKey},
    Key{114, 110, Symbol::insert},
    // Function keys, F1 to F20.
    Key{122, 59, functionKey(1)},
    Key{120, 60, functionKey(2)},
    Key{99, 61, functionKey(3)},
    Key{118, 62, functionKey(4)},
    Key{96, 63, functionKey(5)},
    Key{97, 64, functionKey(6)},
    Key{98, 65, functionKey(7)},
    Key{100, 66, functionKey(8)},
    Key{101, 67, functionKey(9)},
    Key{109, 68, functionKey(10)},
    Key{103, 87, functionKey(11)},
    Key{111, 88, functionKey(12)},
    Key{105, 183, functionKey(13)},
    Key{107, 184, functionKey(14)},
    Key{113, 185, functionKey(15)},
    Key{106, 186, functionKey(16)},
    Key{64, 187, functionKey(17)},
    Key{79, 188, functionKey(18)},
    Key{80, 189, functionKey(19)},
    Key{90, 190, functionKey(20)},
    // Keypad: 0 to 9, decimal, multiply, plus, clear (where others have Num Lock), divide, enter,
    // minus, equals.
    Key{82, 82, Symbol::position},
    Key{83, 79, Symbol::position},
    Key{84, 80, Symbol::position},
    Key{85, 81, Symbol::position},
    Key{86, 75, Symbol::position},
    Key{87, 76, Symbol::position},
    Key{88, 77, Symbol::position},
    Key{89, 71, Symbol::position},
    Key{91, 72, Symbol::position},
    Key{92, 73, Symbol::position},
    Key{65, 83, Symbol::position},
    Key{67, 55, Symbol::position},
    Key{69, 78, Symbol::position},
    Key{71, 69, Symbol::position},
    Key{75, 98, Symbol::position},
    Key{76, 96, Symbol::position},
    Key{78, 74, Symbol::position},
    Key{81, 117, Symbol::position},
    // Japanese keyboards: yen, underscore, keypad comma, eisu, kana.
    Key{93, 124, Symbol::position},
    Key{94, 89, Symbol::position},
    Key{95, 121, Symbol::position},
    Key{102, 123, Symbol::position},
    Key{104, 122, Symbol::position},
    // Volume: up, down, mute.
    Key{72, 115, Symbol::volumeUp},
    Key{73, 114, Symbol::volumeDown},
    Key{74, 113, Symbol::volumeMute},
};

/// What a named key may mean with a modifier held, or under its other name.
struct Alias {
  quint32 keySymbol;
  quint32 namedSymbol;
};

constexpr std::array aliases{
    Alias{Symbol::leftTab, Symbol::tab},  // Tab with Shift
    Alias{Symbol::noBreakSpace, Symbol::space},
    Alias{Symbol::narrowNoBreakSpace, Symbol::space},
    Alias{Symbol::help, Symbol::insert},
};

quint32 withoutAlias(quint32 keySymbol) {
  const auto *alias = std::ranges::find(aliases, keySymbol, &Alias::keySymbol);
  return alias != aliases.end() ? alias->namedSymbol : keySymbol;
}

bool isFunctionKey(const Key &key) {
  return key.keySymbol >= functionKey(1) && key.keySymbol <= functionKey(20);
}

/// Whether the common keyboard maps put \p keySymbol on a function key: a media symbol on those
/// above F12, or none, and a console's on each while Control and Alt are held.
bool isUsualOnFunctionKey(quint32 keySymbol) {
  return keySymbol == 0 || (keySymbol >= Symbol::firstMedia && keySymbol <= Symbol::lastMedia);
}

template <typename Field>
const Key *findKey(quint32 value, Field field) {
  const auto *key = std::ranges::find(keys, value, field);
  return key != keys.end() ? key : nullptr;
}

}  // namespace

std::span<const Key> allKeys() {
  return keys;
}

std::optional<Key> keyForVirtualCode(quint32 virtualCode) {
  const Key *key = findKey(virtualCode, &Key::virtualCode);
  return key != nullptr ? std::optional(*key) : std::nullopt;
}

std::optional<quint32> virtualCodeForPress(quint32 nativeScanCode, quint32 keySymbol) {
  if (keySymbol != Symbol::position) {
    const Key *named = findKey(withoutAlias(keySymbol), &Key::keySymbol);
    if (named != nullptr) {
      return named->virtualCode;
    }
  }
  if (nativeScanCode < firstXKeyCode) {
    return std::nullopt;
  }
  const Key *key = findKey(nativeScanCode - firstXKeyCode, &Key::evdevCode);
  if (key == nullptr) {
    return std::nullopt;
  }
  const bool standsByPosition = key->keySymbol == Symbol::position ||
                                (isFunctionKey(*key) && isUsualOnFunctionKey(keySymbol));
  return standsByPosition ? std::optional(key->virtualCode) : std::nullopt;
}

bool isModifier(quint32 keySymbol) {
  const auto isBetween = [keySymbol](quint32 first, quint32 last) {
    return keySymbol >= first && keySymbol <= last;
  };
  return isBetween(Symbol::firstModifier, Symbol::lastModifier) ||
         isBetween(Symbol::firstLevelSwitch, Symbol::lastLevelSwitch) ||
         keySymbol == Symbol::modeSwitch;
}

}  // namespace lanternix::KeyCodes
