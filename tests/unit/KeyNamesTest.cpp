#include "Platform/KeyCodes.h"
#include "Platform/KeyNames.h"

#include <gtest/gtest.h>
#include <set>

namespace lanternix {
namespace {

using namespace Qt::StringLiterals;
using namespace lanternix::KeyCodes;
using KeyNames::SwayBinding;

constexpr quint32 superShift = classicCommand | classicShift;
constexpr quint32 allFour = superShift | classicOption | classicControl;
constexpr quint32 keyK = 40;
constexpr quint32 f5 = 96;
constexpr quint32 pageUp = 116;
constexpr quint32 keypadEight = 91;
constexpr quint32 volumeUp = 72;
constexpr quint32 noKey = 127;

TEST(KeyNames, PortalTrigger_WritesModifiersAsThePortalDoes) {
  EXPECT_EQ(KeyNames::portalTrigger(space, superShift), u"SHIFT+LOGO+space"_s);
  EXPECT_EQ(KeyNames::portalTrigger(keyK, allFour), u"CTRL+ALT+SHIFT+LOGO+k"_s);
  EXPECT_EQ(KeyNames::portalTrigger(f5, 0), u"F5"_s);
}

TEST(KeyNames, GnomeAccelerator_WritesModifiersInAngles) {
  EXPECT_EQ(KeyNames::gnomeAccelerators(space, superShift), QStringList{u"<Shift><Super>space"_s});
  EXPECT_EQ(KeyNames::gnomeAccelerators(f5, allFour),
            QStringList{u"<Control><Alt><Shift><Super>F5"_s});
  EXPECT_EQ(KeyNames::gnomeAccelerators(pageUp, classicOption), QStringList{u"<Alt>Page_Up"_s});
}

TEST(KeyNames, GnomeAccelerator_OfACharacterKey_GoesByItsPosition) {
  constexpr quint32 digitOne = 18;
  EXPECT_EQ(KeyNames::gnomeAccelerators(keyK, classicCommand),
            QStringList({u"<Super>0x2d"_s, u"<Super>k"_s}));
  EXPECT_EQ(KeyNames::gnomeAccelerators(digitOne, classicControl),
            QStringList({u"<Control>0x0a"_s, u"<Control>1"_s}));
}

TEST(KeyNames, SwayBinding_OfANamedKey_GoesByItsSymbol) {
  EXPECT_EQ(KeyNames::swayBinding(space, superShift),
            (SwayBinding{u"bindsym"_s, u"Shift+Mod4+space"_s}));
  EXPECT_EQ(KeyNames::swayBinding(returnKey, allFour),
            (SwayBinding{u"bindsym"_s, u"Control+Mod1+Shift+Mod4+Return"_s}));
  EXPECT_EQ(KeyNames::swayBinding(volumeUp, 0),
            (SwayBinding{u"bindsym"_s, u"XF86AudioRaiseVolume"_s}));
}

TEST(KeyNames, SwayBinding_OfACharacterKey_GoesByItsPosition) {
  EXPECT_EQ(KeyNames::swayBinding(keyK, classicControl),
            (SwayBinding{u"bindcode"_s, u"Control+45"_s}));
  EXPECT_EQ(KeyNames::swayBinding(keypadEight, classicCommand),
            (SwayBinding{u"bindcode"_s, u"Mod4+80"_s}));
}

TEST(KeyNames, EveryKeyOfTheTable_HasANameOfItsOwn) {
  std::set<QString> names;
  for (const Key &key : allKeys()) {
    const QString name = KeyNames::portalTrigger(key.virtualCode, 0);
    EXPECT_FALSE(name.isEmpty()) << key.virtualCode;
    EXPECT_TRUE(names.insert(name).second) << name.toStdString();
    EXPECT_FALSE(KeyNames::swayBinding(key.virtualCode, 0).keys.isEmpty()) << key.virtualCode;
  }
}

TEST(KeyNames, ForeignModifierBits_AddNothing) {
  EXPECT_EQ(KeyNames::portalTrigger(space, 0x80000000 | classicShift), u"SHIFT+space"_s);
}

TEST(KeyNames, CodeThatNoKeyHas_IsNotNamed) {
  EXPECT_EQ(KeyNames::portalTrigger(noKey, superShift), QString());
  EXPECT_EQ(KeyNames::gnomeAccelerators(noKey, superShift), QStringList());
  EXPECT_EQ(KeyNames::swayBinding(noKey, superShift), SwayBinding());
}

}  // namespace
}  // namespace lanternix
