#include "Platform/KeyCodes.h"

#include <algorithm>
#include <array>

namespace lanternix::KeyCodes {
namespace {

using namespace Qt::StringLiterals;

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

constexpr std::array keys{
    // Letters.
    Key{0, 30, Symbol::position, "a"_L1},
    Key{11, 48, Symbol::position, "b"_L1},
    Key{8, 46, Symbol::position, "c"_L1},
    Key{2, 32, Symbol::position, "d"_L1},
    Key{14, 18, Symbol::position, "e"_L1},
    Key{3, 33, Symbol::position, "f"_L1},
    Key{5, 34, Symbol::position, "g"_L1},
    Key{4, 35, Symbol::position, "h"_L1},
    Key{34, 23, Symbol::position, "i"_L1},
    Key{38, 36, Symbol::position, "j"_L1},
    Key{40, 37, Symbol::position, "k"_L1},
    Key{37, 38, Symbol::position, "l"_L1},
    Key{46, 50, Symbol::position, "m"_L1},
    Key{45, 49, Symbol::position, "n"_L1},
    Key{31, 24, Symbol::position, "o"_L1},
    Key{35, 25, Symbol::position, "p"_L1},
    Key{12, 16, Symbol::position, "q"_L1},
    Key{15, 19, Symbol::position, "r"_L1},
    Key{1, 31, Symbol::position, "s"_L1},
    Key{17, 20, Symbol::position, "t"_L1},
    Key{32, 22, Symbol::position, "u"_L1},
    Key{9, 47, Symbol::position, "v"_L1},
    Key{13, 17, Symbol::position, "w"_L1},
    Key{7, 45, Symbol::position, "x"_L1},
    Key{16, 21, Symbol::position, "y"_L1},
    Key{6, 44, Symbol::position, "z"_L1},
    // Digits.
    Key{29, 11, Symbol::position, "0"_L1},
    Key{18, 2, Symbol::position, "1"_L1},
    Key{19, 3, Symbol::position, "2"_L1},
    Key{20, 4, Symbol::position, "3"_L1},
    Key{21, 5, Symbol::position, "4"_L1},
    Key{23, 6, Symbol::position, "5"_L1},
    Key{22, 7, Symbol::position, "6"_L1},
    Key{26, 8, Symbol::position, "7"_L1},
    Key{28, 9, Symbol::position, "8"_L1},
    Key{25, 10, Symbol::position, "9"_L1},
    // Punctuation, with the extra key of ISO keyboards.
    Key{27, 12, Symbol::position, "minus"_L1},
    Key{24, 13, Symbol::position, "equal"_L1},
    Key{33, 26, Symbol::position, "bracketleft"_L1},
    Key{30, 27, Symbol::position, "bracketright"_L1},
    Key{41, 39, Symbol::position, "semicolon"_L1},
    Key{39, 40, Symbol::position, "apostrophe"_L1},
    Key{comma, 51, Symbol::position, "comma"_L1},
    Key{47, 52, Symbol::position, "period"_L1},
    Key{44, 53, Symbol::position, "slash"_L1},
    Key{42, 43, Symbol::position, "backslash"_L1},
    Key{50, 41, Symbol::position, "grave"_L1},
    Key{10, 86, Symbol::position, "less"_L1},
    // Special keys.
    Key{space, 57, Symbol::space, "space"_L1},
    Key{returnKey, 28, Symbol::returnKey, "Return"_L1},
    Key{48, 15, Symbol::tab, "Tab"_L1},
    Key{51, 14, Symbol::backSpace, "BackSpace"_L1},
    Key{escape, 1, Symbol::escape, "Escape"_L1},
    // Arrows and their neighbours.
    Key{123, 105, Symbol::left, "Left"_L1},
    Key{124, 106, Symbol::right, "Right"_L1},
    Key{downArrow, 108, Symbol::down, "Down"_L1},
    Key{upArrow, 103, Symbol::up, "Up"_L1},
    Key{115, 102, Symbol::home, "Home"_L1},
    Key{119, 107, Symbol::end, "End"_L1},
    Key{116, 104, Symbol::pageUp, "Page_Up"_L1},
    Key{121, 109, Symbol::pageDown, "Page_Down"_L1},
    Key{117, 111, Symbol::deleteKey, "Delete"_L1},
    Key{114, 110, Symbol::insert, "Insert"_L1},
    // Function keys.
    Key{122, 59, functionKey(1), "F1"_L1},
    Key{120, 60, functionKey(2), "F2"_L1},
    Key{99, 61, functionKey(3), "F3"_L1},
    Key{118, 62, functionKey(4), "F4"_L1},
    Key{96, 63, functionKey(5), "F5"_L1},
    Key{97, 64, functionKey(6), "F6"_L1},
    Key{98, 65, functionKey(7), "F7"_L1},
    Key{100, 66, functionKey(8), "F8"_L1},
    Key{101, 67, functionKey(9), "F9"_L1},
    Key{109, 68, functionKey(10), "F10"_L1},
    Key{103, 87, functionKey(11), "F11"_L1},
    Key{111, 88, functionKey(12), "F12"_L1},
    Key{105, 183, functionKey(13), "F13"_L1},
    Key{107, 184, functionKey(14), "F14"_L1},
    Key{113, 185, functionKey(15), "F15"_L1},
    Key{106, 186, functionKey(16), "F16"_L1},
    Key{64, 187, functionKey(17), "F17"_L1},
    Key{79, 188, functionKey(18), "F18"_L1},
    Key{80, 189, functionKey(19), "F19"_L1},
    Key{90, 190, functionKey(20), "F20"_L1},
    // Keypad. Its Clear is where others have Num Lock.
    Key{82, 82, Symbol::position, "KP_0"_L1},
    Key{83, 79, Symbol::position, "KP_1"_L1},
    Key{84, 80, Symbol::position, "KP_2"_L1},
    Key{85, 81, Symbol::position, "KP_3"_L1},
    Key{86, 75, Symbol::position, "KP_4"_L1},
    Key{87, 76, Symbol::position, "KP_5"_L1},
    Key{88, 77, Symbol::position, "KP_6"_L1},
    Key{89, 71, Symbol::position, "KP_7"_L1},
    Key{91, 72, Symbol::position, "KP_8"_L1},
    Key{92, 73, Symbol::position, "KP_9"_L1},
    Key{65, 83, Symbol::position, "KP_Decimal"_L1},
    Key{67, 55, Symbol::position, "KP_Multiply"_L1},
    Key{69, 78, Symbol::position, "KP_Add"_L1},
    Key{71, 69, Symbol::position, "Num_Lock"_L1},
    Key{75, 98, Symbol::position, "KP_Divide"_L1},
    Key{76, 96, Symbol::position, "KP_Enter"_L1},
    Key{78, 74, Symbol::position, "KP_Subtract"_L1},
    Key{81, 117, Symbol::position, "KP_Equal"_L1},
    // Japanese keyboards: yen, underscore, keypad comma, eisu, kana.
    Key{93, 124, Symbol::position, "yen"_L1},
    Key{94, 89, Symbol::position, "underscore"_L1},
    Key{95, 121, Symbol::position, "KP_Separator"_L1},
    Key{102, 123, Symbol::position, "Hangul_Hanja"_L1},
    Key{104, 122, Symbol::position, "Hangul"_L1},
    // Volume.
    Key{72, 115, Symbol::volumeUp, "XF86AudioRaiseVolume"_L1},
    Key{73, 114, Symbol::volumeDown, "XF86AudioLowerVolume"_L1},
    Key{74, 113, Symbol::volumeMute, "XF86AudioMute"_L1},
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
