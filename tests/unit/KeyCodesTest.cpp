#include "Platform/KeyCodes.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <set>
#include <vector>

namespace lanternix {
namespace {

using namespace lanternix::KeyCodes;

constexpr quint32 xKeyCodeOffset = 8;

// X key symbols, named as X names them.
constexpr quint32 XK_a = 0x61;
constexpr quint32 XK_cyrillicShorti = 0x6ca;
constexpr quint32 XK_Escape = 0xff1b;
constexpr quint32 XK_Caps_Lock = 0xffe5;
constexpr quint32 XK_ISO_Left_Tab = 0xfe20;
constexpr quint32 XK_nobreakspace = 0xa0;
constexpr quint32 XK_Help = 0xff6a;
constexpr quint32 XK_F1 = 0xffbe;
constexpr quint32 XK_KP_Up = 0xff97;
constexpr quint32 XF86XK_Tools = 0x1008ff81;
constexpr quint32 XF86XK_Switch_VT_1 = 0x1008fe01;
constexpr quint32 XF86XK_AudioMute = 0x1008ff12;

// Key codes of the keyboard's keys in X.
constexpr quint32 escapePosition = 1 + xKeyCodeOffset;
constexpr quint32 tabPosition = 15 + xKeyCodeOffset;
constexpr quint32 qPosition = 16 + xKeyCodeOffset;
constexpr quint32 spacePosition = 57 + xKeyCodeOffset;
constexpr quint32 capsLockPosition = 58 + xKeyCodeOffset;
constexpr quint32 f1Position = 59 + xKeyCodeOffset;
constexpr quint32 keypadEightPosition = 72 + xKeyCodeOffset;
constexpr quint32 f13Position = 183 + xKeyCodeOffset;
constexpr quint32 f19Position = 189 + xKeyCodeOffset;

std::vector<quint32> virtualCodes() {
  std::vector<quint32> codes;
  for (const Key &key : allKeys()) {
    codes.push_back(key.virtualCode);
  }
  return codes;
}

TEST(KeyCodes, VirtualCodes_AreUnique) {
  const auto codes = virtualCodes();
  EXPECT_EQ(std::set(codes.begin(), codes.end()).size(), codes.size());
}

TEST(KeyCodes, Positions_AreUnique) {
  std::set<quint32> positions;
  for (const Key &key : allKeys()) {
    EXPECT_TRUE(positions.insert(key.evdevCode).second) << key.virtualCode;
  }
}

TEST(KeyCodes, Symbols_AreUnique) {
  std::set<quint32> symbols;
  for (const Key &key : allKeys()) {
    EXPECT_TRUE(key.keySymbol == 0 || symbols.insert(key.keySymbol).second) << key.virtualCode;
  }
}

TEST(KeyCodes, EveryKeyWithAName_IsInTheTable) {
  EXPECT_THAT(virtualCodes(),
              testing::IsSupersetOf({49U,  36U, 48U, 51U, 53U,  0U,   11U,  8U,   2U,   14U,  3U,
                                     5U,   4U,  34U, 38U, 40U,  37U,  46U,  45U,  31U,  35U,  12U,
                                     15U,  1U,  17U, 32U, 9U,   13U,  7U,   16U,  6U,   29U,  18U,
                                     19U,  20U, 21U, 23U, 22U,  26U,  28U,  25U,  122U, 120U, 99U,
                                     118U, 96U, 97U, 98U, 100U, 101U, 109U, 103U, 111U, 27U,  24U,
                                     33U,  30U, 41U, 39U, 43U,  47U,  44U,  42U,  50U}));
}

TEST(KeyCodes, EveryKeyWithoutAName_IsInTheTable) {
  EXPECT_THAT(virtualCodes(), testing::IsSupersetOf(
                                  {123U, 124U, 125U, 126U, 115U, 119U, 116U, 121U, 117U,  // arrows
                                   114U,                                                  // insert
                                   105U, 107U, 113U, 106U, 64U,  79U,  80U,  90U,         // F13 ...
                                   82U,  83U,  84U,  85U,  86U,  87U,  88U,  89U,  91U,
                                   92U,  65U,  67U,  69U,  71U,  75U,  76U,  78U,  81U,  // keypad
                                   10U,  93U,  94U,  95U,  102U, 104U,                   // ISO, JIS
                                   72U,  73U,  74U}));                                   // volume
}

TEST(KeyCodes, UnknownVirtualCode_HasNoKey) {
  EXPECT_FALSE(keyForVirtualCode(4711).has_value());
  EXPECT_FALSE(keyForVirtualCode(57).has_value());  // Caps Lock
}

TEST(KeyCodes, EveryKey_IsFoundByItsVirtualCode) {
  for (const Key &key : allKeys()) {
    const auto found = keyForVirtualCode(key.virtualCode);
    ASSERT_TRUE(found.has_value()) << key.virtualCode;
    EXPECT_EQ(found->evdevCode, key.evdevCode);
  }
}

TEST(KeyCodes, PressOfEveryKey_InItsPlace_IsThatKey) {
  for (const Key &key : allKeys()) {
    EXPECT_EQ(virtualCodeForPress(key.evdevCode + xKeyCodeOffset, key.keySymbol), key.virtualCode);
  }
}

TEST(KeyCodes, Letter_GoesByPositionWhateverTheLayout) {
  EXPECT_EQ(virtualCodeForPress(qPosition, XK_a), 12U);  // as on a French keyboard
  EXPECT_EQ(virtualCodeForPress(qPosition, XK_cyrillicShorti), 12U);
}

TEST(KeyCodes, NamedKey_IsFollowedToAnotherPosition) {
  EXPECT_EQ(virtualCodeForPress(capsLockPosition, XK_Escape), escape);
  EXPECT_EQ(virtualCodeForPress(qPosition, XK_Escape), escape);
}

TEST(KeyCodes, PlaceWhoseNamedKeyIsElsewhere_IsNoKey) {
  EXPECT_EQ(virtualCodeForPress(escapePosition, XK_Caps_Lock), std::nullopt);
}

TEST(KeyCodes, TabAndSpaceWithShift_AreStillThemselves) {
  EXPECT_EQ(virtualCodeForPress(tabPosition, XK_ISO_Left_Tab), 48U);
  EXPECT_EQ(virtualCodeForPress(spacePosition, XK_nobreakspace), space);
}

TEST(KeyCodes, Help_IsInsert) {
  EXPECT_EQ(virtualCodeForPress(146, XK_Help), 114U);
}

TEST(KeyCodes, FunctionKeyWithItsUsualMediaSymbol_IsTheFunctionKey) {
  EXPECT_EQ(virtualCodeForPress(f13Position, XF86XK_Tools), 105U);
  EXPECT_EQ(virtualCodeForPress(f1Position, XF86XK_Switch_VT_1), 122U);
  EXPECT_EQ(virtualCodeForPress(f19Position, 0), 80U);
}

TEST(KeyCodes, MediaKeyOnAFunctionKeysPlace_GoesByItsMeaning) {
  EXPECT_EQ(virtualCodeForPress(f1Position, XF86XK_AudioMute), 74U);
}

TEST(KeyCodes, FunctionKeyOnAnothersPlace_GoesByItsMeaning) {
  EXPECT_EQ(virtualCodeForPress(f1Position, XK_F1 + 1), 120U);
}

TEST(KeyCodes, KeypadKey_GoesByPositionWhateverNumLock) {
  EXPECT_EQ(virtualCodeForPress(keypadEightPosition, XK_KP_Up), 91U);
}

TEST(KeyCodes, UnknownPositions_AreNoKeys) {
  EXPECT_EQ(virtualCodeForPress(0, 0), std::nullopt);
  EXPECT_EQ(virtualCodeForPress(7, XK_a), std::nullopt);
  EXPECT_EQ(virtualCodeForPress(255, XK_a), std::nullopt);
}

TEST(KeyCodes, KeysThatActOnOthers_AreModifiers) {
  for (const quint32 keySymbol :
       {XK_Shift_L, XK_Control_R, XK_Caps_Lock, XK_Super_L, XK_Alt_R, XK_Hyper_R, XK_Mode_switch,
        XK_ISO_Level3_Shift, XK_ISO_Level5_Shift, XK_ISO_Next_Group}) {
    EXPECT_TRUE(KeyCodes::isModifier(keySymbol)) << keySymbol;
  }
}

TEST(KeyCodes, KeysThatDoSomethingThemselves_AreNoModifiers) {
  for (const quint32 keySymbol :
       {XK_a, XK_space, XK_Escape, XK_ISO_Left_Tab, XK_Delete, XK_F1, XK_Num_Lock, XK_KP_0}) {
    EXPECT_FALSE(KeyCodes::isModifier(keySymbol)) << keySymbol;
  }
}

}  // namespace
}  // namespace lanternix
