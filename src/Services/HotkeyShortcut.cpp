#include "Services/HotkeyShortcut.h"

#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>

#include <algorithm>
#include <array>
#include <limits>

namespace lanternix {
namespace {

using namespace Qt::StringLiterals;

struct KeyName {
  quint32 keyCode;
  const char16_t *name;
};

constexpr std::array keyNames{
    // Special keys.
    KeyName{49, u"Space"},
    KeyName{36, u"\u21A9"},
    KeyName{48, u"\u21E5"},
    KeyName{51, u"\u232B"},
    KeyName{53, u"\u238B"},
    // Letters.
    KeyName{0, u"A"},
    KeyName{11, u"B"},
    KeyName{8, u"C"},
    KeyName{2, u"D"},
    KeyName{14, u"E"},
    KeyName{3, u"F"},
    KeyName{5, u"G"},
    KeyName{4, u"H"},
    KeyName{34, u"I"},
    KeyName{38, u"J"},
    KeyName{40, u"K"},
    KeyName{37, u"L"},
    KeyName{46, u"M"},
    KeyName{45, u"N"},
    KeyName{31, u"O"},
    KeyName{35, u"P"},
    KeyName{12, u"Q"},
    KeyName{15, u"R"},
    KeyName{1, u"S"},
    KeyName{17, u"T"},
    KeyName{32, u"U"},
    KeyName{9, u"V"},
    KeyName{13, u"W"},
    KeyName{7, u"X"},
    KeyName{16, u"Y"},
    KeyName{6, u"Z"},
    // Digits.
    KeyName{29, u"0"},
    KeyName{18, u"1"},
    KeyName{19, u"2"},
    KeyName{20, u"3"},
    KeyName{21, u"4"},
    KeyName{23, u"5"},
    KeyName{22, u"6"},
    KeyName{26, u"7"},
    KeyName{28, u"8"},
    KeyName{25, u"9"},
    // Function keys.
    KeyName{122, u"F1"},
    KeyName{120, u"F2"},
    KeyName{99, u"F3"},
    KeyName{118, u"F4"},
    KeyName{96, u"F5"},
    KeyName{97, u"F6"},
    KeyName{98, u"F7"},
    KeyName{100, u"F8"},
    KeyName{101, u"F9"},
    KeyName{109, u"F10"},
    KeyName{103, u"F11"},
    KeyName{111, u"F12"},
    // Punctuation.
    KeyName{27, u"-"},
    KeyName{24, u"="},
    KeyName{33, u"["},
    KeyName{30, u"]"},
    KeyName{41, u";"},
    KeyName{39, u"'"},
    KeyName{43, u","},
    KeyName{47, u"."},
    KeyName{44, u"/"},
    KeyName{42, u"\\"},
    KeyName{50, u"`"},
};
static_assert(keyNames.size() == 64);

/// Names indexed by key code, so that a look-up is one step.
constexpr auto namesByKeyCode = [] {
  std::array<const char16_t *, 128> names{};
  for (const KeyName &entry : keyNames) {
    names[entry.keyCode] = entry.name;
  }
  return names;
}();

/// The key's name as people read it; empty for a key without one.
QString keyCodeToString(quint32 keyCode) {
  if (keyCode >= namesByKeyCode.size() || namesByKeyCode[keyCode] == nullptr) {
    return {};
  }
  return QString::fromUtf16(namesByKeyCode[keyCode]);
}

namespace CodingKeys {
constexpr auto keyCode = "keyCode"_L1;
constexpr auto modifiers = "modifiers"_L1;
}  // namespace CodingKeys

std::optional<quint32> unsignedValue(const QJsonObject &object, QLatin1StringView key) {
  constexpr qint64 invalid = -1;
  const qint64 value = object.value(key).toInteger(invalid);
  if (value < 0 || value > std::numeric_limits<quint32>::max()) {
    return std::nullopt;
  }
  return static_cast<quint32>(value);
}

}  // namespace

quint32 HotkeyShortcut::carbonModifiers() const {
  quint32 mask = 0;
  mask |= (modifiers & command) != 0 ? classicCommand : 0U;
  mask |= (modifiers & shift) != 0 ? classicShift : 0U;
  mask |= (modifiers & option) != 0 ? classicOption : 0U;
  mask |= (modifiers & control) != 0 ? classicControl : 0U;
  return mask;
}

QString HotkeyShortcut::displayString() const {
  QString text;
  if ((modifiers & control) != 0) {
    text += u'\u2303';
  }
  if ((modifiers & option) != 0) {
    text += u'\u2325';
  }
  if ((modifiers & shift) != 0) {
    text += u'\u21E7';
  }
  if ((modifiers & command) != 0) {
    text += u'\u2318';
  }
  return text + keyCodeToString(keyCode);
}

QByteArray HotkeyShortcut::encoded() const {
  const QJsonObject object{{CodingKeys::keyCode, static_cast<qint64>(keyCode)},
                           {CodingKeys::modifiers, static_cast<qint64>(modifiers)}};
  return QJsonDocument(object).toJson(QJsonDocument::Compact);
}

std::optional<HotkeyShortcut> HotkeyShortcut::decoded(const QByteArray &bytes) {
  const QJsonObject object = QJsonDocument::fromJson(bytes).object();
  const auto keyCode = unsignedValue(object, CodingKeys::keyCode);
  const auto modifiers = unsignedValue(object, CodingKeys::modifiers);
  if (!keyCode || !modifiers) {
    return std::nullopt;
  }
  return HotkeyShortcut{*keyCode, *modifiers};
}

}  // namespace lanternix
