#include "Services/HotkeyShortcut.h"

#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtCore/QStringList>

#include <gtest/gtest.h>
#include <limits>

namespace lanternix {
namespace {

using namespace Qt::StringLiterals;
using Shortcut = HotkeyShortcut;

constexpr quint32 keyK = 40;
constexpr quint32 upArrow = 126;
constexpr quint32 capsLockBit = 0x10000;

QString nameOf(quint32 keyCode) {
  return Shortcut{keyCode, 0}.displayString();
}

TEST(HotkeyShortcut, Default_IsShiftCommandSpace) {
  EXPECT_EQ(Shortcut().displayString(), u"⇧⌘Space"_s);
  EXPECT_EQ(Shortcut().carbonModifiers(), 768U);
  EXPECT_EQ(Shortcut().keyCode, 49U);
  EXPECT_EQ(Shortcut().modifiers, 0x120000U);
}

TEST(HotkeyShortcut, CarbonModifiers_MapEachModifier) {
  EXPECT_EQ((Shortcut{keyK, Shortcut::command}.carbonModifiers()), 256U);
  EXPECT_EQ((Shortcut{keyK, Shortcut::shift}.carbonModifiers()), 512U);
  EXPECT_EQ((Shortcut{keyK, Shortcut::option}.carbonModifiers()), 2048U);
  EXPECT_EQ((Shortcut{keyK, Shortcut::control}.carbonModifiers()), 4096U);
  EXPECT_EQ((Shortcut{keyK, Shortcut::allModifiers}.carbonModifiers()), 6912U);
  EXPECT_EQ((Shortcut{keyK, 0}.carbonModifiers()), 0U);
}

TEST(HotkeyShortcut, DisplayString_OrdersModifiersAlwaysAlike) {
  EXPECT_EQ(
      (Shortcut{keyK, Shortcut::command | Shortcut::shift | Shortcut::control}.displayString()),
      u"⌃⇧⌘K"_s);
  EXPECT_EQ((Shortcut{keyK, Shortcut::allModifiers}.displayString()), u"⌃⌥⇧⌘K"_s);
}

TEST(HotkeyShortcut, DisplayString_OfKeyWithoutName_ShowsModifiersAlone) {
  EXPECT_EQ((Shortcut{upArrow, Shortcut::option}.displayString()), u"⌥"_s);
  EXPECT_EQ((Shortcut{upArrow, 0}.displayString()), QString());
  EXPECT_EQ((Shortcut{std::numeric_limits<quint32>::max(), 0}.displayString()), QString());
}

TEST(HotkeyShortcut, ForeignModifierBits_AreIgnored) {
  const Shortcut plain;
  const Shortcut withCapsLock{plain.keyCode, plain.modifiers | capsLockBit};
  EXPECT_EQ(withCapsLock.displayString(), plain.displayString());
  EXPECT_EQ(withCapsLock.carbonModifiers(), plain.carbonModifiers());
}

TEST(HotkeyShortcut, SpecialKeys_HaveTheirSymbols) {
  EXPECT_EQ(nameOf(49), u"Space"_s);
  EXPECT_EQ(nameOf(36), u"↩"_s);
  EXPECT_EQ(nameOf(48), u"⇥"_s);
  EXPECT_EQ(nameOf(51), u"⌫"_s);
  EXPECT_EQ(nameOf(53), u"⎋"_s);
}

TEST(HotkeyShortcut, Letters_HaveUpperCaseNames) {
  constexpr quint32 codes[] = {0,  11, 8,  2,  14, 3, 5,  4,  34, 38, 40, 37, 46,
                               45, 31, 35, 12, 15, 1, 17, 32, 9,  13, 7,  16, 6};
  QString names;
  for (const quint32 code : codes) {
    names += nameOf(code);
  }
  EXPECT_EQ(names, u"ABCDEFGHIJKLMNOPQRSTUVWXYZ"_s);
}

TEST(HotkeyShortcut, Digits_AreTheirOwnNames) {
  constexpr quint32 codes[] = {29, 18, 19, 20, 21, 23, 22, 26, 28, 25};
  QString names;
  for (const quint32 code : codes) {
    names += nameOf(code);
  }
  EXPECT_EQ(names, u"0123456789"_s);
}

TEST(HotkeyShortcut, FunctionKeys_AreNumbered) {
  constexpr quint32 codes[] = {122, 120, 99, 118, 96, 97, 98, 100, 101, 109, 103, 111};
  int number = 0;
  for (const quint32 code : codes) {
    EXPECT_EQ(nameOf(code), u"F%1"_s.arg(++number));
  }
}

TEST(HotkeyShortcut, Punctuation_IsItsOwnName) {
  constexpr quint32 codes[] = {27, 24, 33, 30, 41, 39, 43, 47, 44, 42, 50};
  QString names;
  for (const quint32 code : codes) {
    names += nameOf(code);
  }
  EXPECT_EQ(names, u"-=[];',./\\`"_s);
}

TEST(HotkeyShortcut, ExactlySixtyFourKeys_HaveNames) {
  QStringList names;
  for (quint32 code = 0; code < 1000; ++code) {
    if (const QString name = nameOf(code); !name.isEmpty()) {
      names.append(name);
    }
  }
  EXPECT_EQ(names.size(), 64);
  EXPECT_EQ(names.removeDuplicates(), 0);
}

TEST(HotkeyShortcut, Equality_TakesBothFields) {
  EXPECT_EQ(Shortcut(), (Shortcut{49, 0x120000}));
  EXPECT_NE(Shortcut(), (Shortcut{49, 0}));
  EXPECT_NE(Shortcut(), (Shortcut{50, 0x120000}));
}

TEST(HotkeyShortcut, Encoded_IsOneCompactObjectOfTwoNumbers) {
  const QByteArray bytes = Shortcut().encoded();
  EXPECT_FALSE(bytes.contains(' ') || bytes.contains('\n'));
  const QJsonObject object = QJsonDocument::fromJson(bytes).object();
  EXPECT_EQ(object, (QJsonObject{{u"keyCode"_s, 49}, {u"modifiers"_s, 1179648}}));
}

TEST(HotkeyShortcut, EncodedValue_DecodesToAnEqualOne) {
  constexpr quint32 largest = std::numeric_limits<quint32>::max();
  for (const Shortcut &shortcut :
       {Shortcut(), Shortcut{0, 0}, Shortcut{largest, largest}, Shortcut{keyK, 1}}) {
    EXPECT_EQ(Shortcut::decoded(shortcut.encoded()), shortcut);
  }
}

TEST(HotkeyShortcut, Decoded_TakesAnyKeyOrderAndIgnoresForeignKeys) {
  EXPECT_EQ(Shortcut::decoded(R"({ "note": [], "modifiers": 1179648, "keyCode": 49 })"),
            Shortcut());
}

class UndecodableShortcut : public testing::TestWithParam<const char *> {};

TEST_P(UndecodableShortcut, GivesNone) {
  EXPECT_EQ(Shortcut::decoded(GetParam()), std::nullopt);
}

INSTANTIATE_TEST_SUITE_P(
    HotkeyShortcut, UndecodableShortcut,
    testing::Values("", "null", "[49,1179648]", "{", "{}", R"({"keyCode":49})",
                    R"({"modifiers":1179648})", R"({"keyCode":"49","modifiers":1179648})",
                    R"({"keyCode":49,"modifiers":true})", R"({"keyCode":49,"modifiers":null})",
                    R"({"keyCode":-1,"modifiers":0})", R"({"keyCode":49.5,"modifiers":0})",
                    R"({"keyCode":4294967296,"modifiers":0})",
                    R"({"keyCode":49,"modifiers":1e300})", R"({"keycode":49,"modifiers":0})",
                    R"({"keyCode":49,"modifiers":0} rubbish)", "\xff\xfe"));

}  // namespace
}  // namespace lanternix
