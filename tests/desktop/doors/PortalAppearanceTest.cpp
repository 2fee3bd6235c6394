#include "Platform/Linux/PortalAppearance.h"
#include "desktop/PortalService.h"
#include "support/SessionBus.h"
#include "support/WaitUntil.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QFile>
#include <QtDBus/QDBusConnectionInterface>

#include <gtest/gtest.h>
#include <memory>

namespace lanternix {
namespace {

using namespace Qt::StringLiterals;
using ColorScheme = Appearance::ColorScheme;

const QString portalName = u"org.freedesktop.portal.Desktop"_s;
const QString look = u"org.freedesktop.appearance"_s;
const QString interface = u"org.gnome.desktop.interface"_s;
constexpr quint32 dark = 1;
constexpr quint32 light = 2;

class PortalAppearanceTest : public testing::Test {
 protected:
  ~PortalAppearanceTest() override {
    appearance.reset();
    QDBusConnection::disconnectFromBus(u"program"_s);
  }

  void startPortal(const PortalService::Settings &settings,
                   PortalService::Knows knows = PortalService::Knows::everything) {
    portal = std::make_unique<PortalService>(bus.address(), settings, knows);
  }

  void startProgram() {
    appearance = std::make_unique<PortalAppearance>(connection);
    QObject::connect(appearance.get(), &SystemAppearance::changed, [this] { ++changes; });
  }

  const Appearance &now() const { return appearance->appearance(); }

  bool becomes(ColorScheme scheme) const {
    return waitUntil([&] { return now().colorScheme == scheme; });
  }

  /// Says dark as the last of the portal's words, after which all the earlier ones have been heard.
  bool hearsTheLastWord() {
    portal->change(look, u"color-scheme"_s, dark);
    return becomes(ColorScheme::dark);
  }

  static PortalService::Settings everySetting() {
    return {{look,
             {{u"color-scheme"_s, dark},
              {u"accent-color"_s, PortalService::color(0.5, 0.25, 1)},
              {u"contrast"_s, 1U},
              {u"reduced-motion"_s, 1U}}},
            {interface, {{u"icon-theme"_s, u"Papirus"_s}, {u"enable-animations"_s, true}}}};
  }

  static Appearance everyPreference() {
    return {ColorScheme::dark, Appearance::Rgb{0.5, 0.25, 1}, true, true, u"Papirus"_s};
  }

  bool becomesEveryPreference() const {
    return waitUntil([&] { return now() == everyPreference(); });
  }

  SessionBus bus;
  QDBusConnection connection = QDBusConnection::connectToBus(bus.address(), u"program"_s);
  std::unique_ptr<PortalService> portal;
  std::unique_ptr<PortalAppearance> appearance;
  int changes = 0;
};

}  // namespace

TEST_F(PortalAppearanceTest, EverySetting_IsReadAtOnceInOneCall) {
  startPortal(everySetting());
  startProgram();
  EXPECT_TRUE(becomesEveryPreference());
  EXPECT_EQ(changes, 1);
  EXPECT_EQ(portal->calls(), QStringList(u"ReadAll"_s));
}

TEST_F(PortalAppearanceTest, BeforeTheAnswer_NothingIsPreferred) {
  startPortal(everySetting());
  startProgram();
  EXPECT_EQ(now(), Appearance());
}

TEST_F(PortalAppearanceTest, PortalWithoutReadAll_IsAskedForEachSetting) {
  startPortal(everySetting(), PortalService::Knows::readOneAndRead);
  startProgram();
  EXPECT_TRUE(becomesEveryPreference());
  EXPECT_FALSE(portal->calls().contains(u"Read"_s));
}

TEST_F(PortalAppearanceTest, PortalThatOnlyReads_IsUnderstoodThroughItsDoubleWrapping) {
  startPortal(everySetting(), PortalService::Knows::readOnly);
  startProgram();
  EXPECT_TRUE(becomesEveryPreference());
}

TEST_F(PortalAppearanceTest, PortalThatOnlyReads_MayLackSettings) {
  startPortal({{look, {{u"color-scheme"_s, light}}}}, PortalService::Knows::readOnly);
  startProgram();
  EXPECT_TRUE(becomes(ColorScheme::light));
}

TEST_F(PortalAppearanceTest, PortalWithoutSettings_LeavesNothingPreferredAndIsStillHeard) {
  startPortal({}, PortalService::Knows::nothing);
  startProgram();
  ASSERT_TRUE(waitUntil([this] { return portal->calls().contains(u"Read"_s); }));
  EXPECT_TRUE(hearsTheLastWord());
  EXPECT_EQ(now(), (Appearance{.colorScheme = ColorScheme::dark}));
}

TEST_F(PortalAppearanceTest, EveryChange_IsFollowed) {
  startPortal({});
  startProgram();
  portal->change(look, u"accent-color"_s, PortalService::color(0.5, 0.25, 1));
  portal->change(look, u"contrast"_s, 1U);
  portal->change(look, u"reduced-motion"_s, 1U);
  portal->change(interface, u"icon-theme"_s, u"Papirus"_s);
  portal->change(look, u"color-scheme"_s, dark);
  EXPECT_TRUE(becomesEveryPreference());
  portal->change(look, u"color-scheme"_s, light);
  EXPECT_TRUE(becomes(ColorScheme::light));
}

TEST_F(PortalAppearanceTest, ValueWrappedTwiceInAChange_IsUnwrapped) {
  startPortal({});
  startProgram();
  portal->change(look, u"color-scheme"_s, QVariant::fromValue(QDBusVariant(dark)));
  EXPECT_TRUE(becomes(ColorScheme::dark));
}

TEST_F(PortalAppearanceTest, WhatIsSaidAgainOrOfOtherSettings_IsNoChange) {
  startPortal({{look, {{u"contrast"_s, 1U}}}});
  startProgram();
  ASSERT_TRUE(waitUntil([this] { return now().prefersHighContrast; }));
  portal->change(look, u"contrast"_s, 1U);
  portal->change(interface, u"gtk-theme"_s, u"Yaru"_s);
  portal->change(u"org.example"_s, u"color-scheme"_s, light);
  EXPECT_TRUE(hearsTheLastWord());
  EXPECT_EQ(changes, 2);
}

TEST_F(PortalAppearanceTest, AnimationsSwitchedOff_AreReducedMotion) {
  startPortal({{interface, {{u"enable-animations"_s, false}}}});
  startProgram();
  EXPECT_TRUE(waitUntil([this] { return now().prefersReducedMotion; }));
}

TEST_F(PortalAppearanceTest, AccentColorOutOfRange_IsNone) {
  startPortal({{look, {{u"accent-color"_s, PortalService::color(0.5, 0.25, 1)}}}});
  startProgram();
  ASSERT_TRUE(waitUntil([this] { return now().accentColor.has_value(); }));
  portal->change(look, u"accent-color"_s, PortalService::color(-1, -1, -1));
  EXPECT_TRUE(waitUntil([this] { return !now().accentColor.has_value(); }));
}

TEST_F(PortalAppearanceTest, WrongTypesAndUnknownValues_AreNotSaid) {
  startPortal({{look,
                {{u"color-scheme"_s, u"dark"_s},
                 {u"accent-color"_s, QVariantList{0.5, 0.25, 1.0}},
                 {u"contrast"_s, true},
                 {u"reduced-motion"_s, 7U}}},
               {interface, {{u"icon-theme"_s, 3}, {u"enable-animations"_s, 0U}}}});
  startProgram();
  portal->change(look, u"accent-color"_s, u"#8040ff"_s);
  EXPECT_TRUE(hearsTheLastWord());
  EXPECT_EQ(now(), (Appearance{.colorScheme = ColorScheme::dark}));
}

TEST_F(PortalAppearanceTest, ValueOfAWrongType_TakesTheEarlierOneBack) {
  startPortal({{look, {{u"color-scheme"_s, dark}}}});
  startProgram();
  ASSERT_TRUE(becomes(ColorScheme::dark));
  portal->change(look, u"color-scheme"_s, u"light"_s);
  EXPECT_TRUE(becomes(ColorScheme::noPreference));
}

TEST_F(PortalAppearanceTest, PortalThatComesLate_IsAsked) {
  startProgram();
  startPortal(everySetting());
  EXPECT_TRUE(becomesEveryPreference());
}

TEST_F(PortalAppearanceTest, PortalThatGoes_LeavesWhatItSaid) {
  startPortal(everySetting());
  startProgram();
  ASSERT_TRUE(becomesEveryPreference());
  portal.reset();
  ASSERT_TRUE(
      waitUntil([this] { return !connection.interface()->isServiceRegistered(portalName); }));
  QCoreApplication::processEvents();
  EXPECT_EQ(now(), everyPreference());
}

TEST_F(PortalAppearanceTest, PortalThatComesBack_IsAskedAnewAndHeard) {
  startPortal(everySetting());
  startProgram();
  ASSERT_TRUE(becomesEveryPreference());
  portal.reset();
  startPortal({{look, {{u"color-scheme"_s, light}}}});
  EXPECT_TRUE(waitUntil([this] { return now() == Appearance{.colorScheme = ColorScheme::light}; }));
  EXPECT_TRUE(hearsTheLastWord());
}

TEST_F(PortalAppearanceTest, ChangesByAnotherThanThePortal_AreNotBelieved) {
  startPortal({{look, {{u"color-scheme"_s, light}}}});
  startProgram();
  ASSERT_TRUE(becomes(ColorScheme::light));
  auto forged =
      QDBusMessage::createSignal(u"/org/freedesktop/portal/desktop"_s,
                                 u"org.freedesktop.portal.Settings"_s, u"SettingChanged"_s);
  forged.setArguments({look, u"contrast"_s, QVariant::fromValue(QDBusVariant(1U))});
  QDBusConnection other = QDBusConnection::connectToBus(bus.address(), u"other"_s);
  other.send(forged);
  // Its own reply tells that the bus has passed the signal on.
  EXPECT_TRUE(other.interface()->isServiceRegistered(portalName).value());
  QDBusConnection::disconnectFromBus(u"other"_s);
  EXPECT_TRUE(hearsTheLastWord());
  EXPECT_FALSE(now().prefersHighContrast);
}

TEST_F(PortalAppearanceTest, AnswerAfterTheProgramsEnd_ReachesNobody) {
  startPortal(everySetting());
  startProgram();
  appearance.reset();
  ASSERT_TRUE(waitUntil([this] { return !portal->calls().isEmpty(); }));
  startProgram();
  EXPECT_TRUE(becomesEveryPreference());
  EXPECT_EQ(changes, 1);
}

TEST_F(PortalAppearanceTest, PortalThatNeverAnswers_KeepsNobodyWaitingAndIsStillHeard) {
  startPortal({});
  portal->keepSilent();
  startProgram();
  ASSERT_TRUE(waitUntil([this] { return !portal->calls().isEmpty(); }));
  EXPECT_TRUE(hearsTheLastWord());
}

TEST_F(PortalAppearanceTest, PortalThatTheBusCanStart_IsStarted) {
  const QString mark = bus.serviceDirectory() + u"/started"_s;
  QFile service(bus.serviceDirectory() + u"/portal.service"_s);
  ASSERT_TRUE(service.open(QIODevice::WriteOnly));
  service.write(
      u"[D-BUS Service]\nName=%1\nExec=/usr/bin/touch %2\n"_s.arg(portalName, mark).toUtf8());
  service.close();
  ASSERT_TRUE(waitUntil([this] {
    return connection.interface()->activatableServiceNames().value().contains(portalName);
  }));
  startProgram();
  EXPECT_TRUE(waitUntil([&] { return QFile::exists(mark); }));
}

TEST_F(PortalAppearanceTest, WithoutABus_NothingIsPreferred) {
  const PortalAppearance alone{QDBusConnection(u"nowhere"_s)};
  QCoreApplication::processEvents();
  EXPECT_EQ(alone.appearance(), Appearance());
}

}  // namespace lanternix
