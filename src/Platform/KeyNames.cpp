#include "Platform/KeyNames.h"

#include "Platform/KeyCodes.h"

#include <algorithm>
#include <array>
#include <optional>

namespace lanternix::KeyNames {
namespace {

using namespace Qt::StringLiterals;

struct KeyName {
  quint32 virtualCode;
  QLatin1StringView symbol;
};

/// Symbols go by the names that the keyboard libraries of all desktops share.
constexpr std::array keyNames{
    // Letters.
    KeyName{0, "a"_L1},
    KeyName{11, "b"_L1},
    KeyName{8, "c"_L1},
    KeyName{2, "d"_L1},
    KeyName{14, "e"_L1},
    KeyName{3, "f"_L1},
    KeyName{5, "g"_L1},
    KeyName{4, "h"_L1},
    KeyName{34, "i"_L1},
    KeyName{38, "j"_L1},
    KeyName{40, "k"_L1},
    KeyName{37, "l"_L1},
    KeyName{46, "m"_L1},
    KeyName{45, "n"_L1},
    KeyName{31, "o"_L1},
    KeyName{35, "p"_L1},
    KeyName{12, "q"_L1},
    KeyName{15, "r"_L1},
    KeyName{1, "s"_L1},
    KeyName{17, "t"_L1},
    KeyName{32, "u"_L1},
    KeyName{9, "v"_L1},
    KeyName{13, "w"_L1},
    KeyName{7, "x"_L1},
    KeyName{16, "y"_L1},
    KeyName{6, "z"_L1},
    // Digits.
    KeyName{29, "0"_L1},
    KeyName{18, "1"_L1},
    KeyName{19, "2"_L1},
    KeyName{20, "3"_L1},
    KeyName{21, "4"_L1},
    KeyName{23, "5"_L1},
    KeyName{22, "6"_L1},
    KeyName{26, "7"_L1},
    KeyName{28, "8"_L1},
    KeyName{25, "9"_L1},
    // Punctuation, with the extra key of ISO keyboards.
    KeyName{27, "minus"_L1},
    KeyName{24, "equal"_L1},
    KeyName{33, "bracketleft"_L1},
    KeyName{30, "bracketright"_L1},
    KeyName{41, "semicolon"_L1},
    KeyName{39, "apostrophe"_L1},
    KeyName{43, "comma"_L1},
    KeyName{47, "period"_L1},
    KeyName{44, "slash"_L1},
    KeyName{42, "backslash"_L1},
    KeyName{50, "grave"_L1},
    KeyName{10, "less"_L1},
    // Special keys.
    KeyName{49, "space"_L1},
    KeyName{36, "Return"_L1},
    KeyName{48, "Tab"_L1},
    KeyName{51, "BackSpace"_L1},
    KeyName{53, "Escape"_L1},
    // Arrows and their neighbours.
    KeyName{123, "Left"_L1},
    KeyName{124, "Right"_L1},
    KeyName{125, "Down"_L1},
    KeyName{126, "Up"_L1},
    KeyName{115, "Home"_L1},
    KeyName{119, "End"_L1},
    KeyName{116, "Page_Up"_L1},
    KeyName{121, "Page_Down"_L1},
    KeyName{117, "Delete"_L1},
    KeyName{114, "Insert"_L1},
    // Function keys.
    KeyName{122, "F1"_L1},
    KeyName{120, "F2"_L1},
    KeyName{99, "F3"_L1},
    KeyName{118, "F4"_L1},
    KeyName{96, "F5"_L1},
    KeyName{97, "F6"_L1},
    KeyName{98, "F7"_L1},
    KeyName{100, "F8"_L1},
    KeyName{101, "F9"_L1},
    KeyName{109, "F10"_L1},
    KeyName{103, "F11"_L1},
    KeyName{111, "F12"_L1},
    KeyName{105, "F13"_L1},
    KeyName{107, "F14"_L1},
    KeyName{113, "F15"_L1},
    KeyName{106, "F16"_L1},
    KeyName{64, "F17"_L1},
    KeyName{79, "F18"_L1},
    KeyName{80, "F19"_L1},
    KeyName{90, "F20"_L1},
    // Keypad.
    KeyName{82, "KP_0"_L1},
    KeyName{83, "KP_1"_L1},
    KeyName{84, "KP_2"_L1},
    KeyName{85, "KP_3"_L1},
    KeyName{86, "KP_4"_L1},
    KeyName{87, "KP_5"_L1},
    KeyName{88, "KP_6"_L1},
    KeyName{89, "KP_7"_L1},
    KeyName{91, "KP_8"_L1},
    KeyName{92, "KP_9"_L1},
    KeyName{65, "KP_Decimal"_L1},
    KeyName{67, "KP_Multiply"_L1},
    KeyName{69, "KP_Add"_L1},
    KeyName{71, "Num_Lock"_L1},
    KeyName{75, "KP_Divide"_L1},
    KeyName{76, "KP_Enter"_L1},
    KeyName{78, "KP_Subtract"_L1},
    KeyName{81, "KP_Equal"_L1},
    // Japanese keyboards: yen, underscore, keypad comma, eisu, kana.
    KeyName{93, "yen"_L1},
    KeyName{94, "underscore"_L1},
    KeyName{95, "KP_Separator"_L1},
    KeyName{102, "Hangul_Hanja"_L1},
    KeyName{104, "Hangul"_L1},
    // Volume.
    KeyName{72, "XF86AudioRaiseVolume"_L1},
    KeyName{73, "XF86AudioLowerVolume"_L1},
    KeyName{74, "XF86AudioMute"_L1},
};

/// The four modifiers in the words of one desktop, in the order in which they are written.
struct ModifierNames {
  QLatin1StringView control;
  QLatin1StringView option;
  QLatin1StringView shift;
  QLatin1StringView command;
};

QString joined(quint32 classicModifiers, const ModifierNames &names) {
  QString text;
  const auto add = [&](quint32 modifier, QLatin1StringView name) {
    if ((classicModifiers & modifier) != 0) {
      text += name;
    }
  };
  add(KeyCodes::classicControl, names.control);
  add(KeyCodes::classicOption, names.option);
  add(KeyCodes::classicShift, names.shift);
  add(KeyCodes::classicCommand, names.command);
  return text;
}

std::optional<QLatin1StringView> symbolName(quint32 virtualCode) {
  const auto *name = std::ranges::find(keyNames, virtualCode, &KeyName::virtualCode);
  return name != keyNames.end() ? std::optional(name->symbol) : std::nullopt;
}

QString written(quint32 keyCode, quint32 classicModifiers, const ModifierNames &names) {
  const auto symbol = symbolName(keyCode);
  return symbol ? joined(classicModifiers, names) + *symbol : QString();
}

}  // namespace

QString portalTrigger(quint32 keyCode, quint32 classicModifiers) {
  return written(keyCode, classicModifiers, {"CTRL+"_L1, "ALT+"_L1, "SHIFT+"_L1, "LOGO+"_L1});
}

QString gnomeAccelerator(quint32 keyCode, quint32 classicModifiers) {
  return written(keyCode, classicModifiers,
                 {"<Control>"_L1, "<Alt>"_L1, "<Shift>"_L1, "<Super>"_L1});
}

SwayBinding swayBinding(quint32 keyCode, quint32 classicModifiers) {
  constexpr ModifierNames names{"Control+"_L1, "Mod1+"_L1, "Shift+"_L1, "Mod4+"_L1};
  const auto key = KeyCodes::keyForVirtualCode(keyCode);
  if (!key) {
    return {};
  }
  if (key->keySymbol != 0) {
    return {u"bindsym"_s, written(keyCode, classicModifiers, names)};
  }
  constexpr quint32 firstXKeyCode = 8;
  return {u"bindcode"_s,
          joined(classicModifiers, names) + QString::number(key->evdevCode + firstXKeyCode)};
}

}  // namespace lanternix::KeyNames
