#include "SingleInstanceTest.h"
#include "support/DesktopShell.h"

#include <QtCore/QFile>

#include <csignal>
#include <gmock/gmock.h>

namespace lanternix {
namespace {

using namespace Qt::StringLiterals;

class ApplicationInterfaceTest : public SingleInstanceOnBusTest {
 protected:
  /// The program is running.
  void start() {
    first = std::make_unique<Start>(environment);
    ASSERT_TRUE(first->isFirst());
  }

  const QVariantMap noData;
  const QVariantMap tokens{{u"activation-token"_s, u"wl-7"_s},
                           {u"desktop-startup-id"_s, u"menu_TIME70"_s}};
  DesktopShell shell{bus.address()};
  std::unique_ptr<Start> first;
};

TEST_F(ApplicationInterfaceTest, Activate_ShowsThePanel) {
  start();
  EXPECT_EQ(shell.activate(), QString());
  EXPECT_TRUE(first->hears({u"showPanel token= id="_s}));
}

TEST_F(ApplicationInterfaceTest, Open_ShowsThePanelWhateverTheFiles) {
  start();
  EXPECT_EQ(shell.open({u"file:///etc/hosts"_s, u"no uri"_s}), QString());
  EXPECT_TRUE(first->hears({u"showPanel token= id="_s}));
}

TEST_F(ApplicationInterfaceTest, EachAction_IsTheRequestOfItsName) {
  start();
  EXPECT_EQ(shell.activateAction(u"toggle"_s), QString());
  EXPECT_EQ(shell.activateAction(u"show"_s), QString());
  EXPECT_EQ(shell.activateAction(u"settings"_s), QString());
  EXPECT_TRUE(first->hears(
      {u"togglePanel token= id="_s, u"showPanel token= id="_s, u"openSettings token= id="_s}))
      << first->output().toStdString();
}

TEST_F(ApplicationInterfaceTest, UnknownAction_IsRefusedLoggedAndNothingElse) {
  start();
  for (const QString &name : {u"Toggle"_s, u"show "_s, u"quit"_s, QString()}) {
    EXPECT_EQ(shell.activateAction(name), u"org.freedesktop.DBus.Error.InvalidArgs"_s);
  }
  EXPECT_EQ(shell.activateAction(u"show"_s), QString());
  EXPECT_TRUE(first->hears({u"showPanel token= id="_s})) << first->output().toStdString();
  EXPECT_THAT(first->errors().toStdString(), testing::HasSubstr("\"quit\""));
}

TEST_F(ApplicationInterfaceTest, TokensOfACall_ComeWithItsRequest) {
  start();
  EXPECT_EQ(shell.activate(tokens), QString());
  EXPECT_EQ(shell.open({}, tokens), QString());
  EXPECT_EQ(shell.activateAction(u"toggle"_s, tokens), QString());
  EXPECT_TRUE(first->hears({u"showPanel token=wl-7 id=menu_TIME70"_s,
                            u"showPanel token=wl-7 id=menu_TIME70"_s,
                            u"togglePanel token=wl-7 id=menu_TIME70"_s}))
      << first->output().toStdString();
}

TEST_F(ApplicationInterfaceTest, DataOfOtherKindsAndTypes_AreNoTokens) {
  start();
  EXPECT_EQ(shell.activate({{u"activation-token"_s, QVariantList{1, 2}}, {u"colour"_s, 3}}),
            QString());
  EXPECT_TRUE(first->hears({u"showPanel token= id="_s}));
}

TEST_F(ApplicationInterfaceTest, Introspection_ShowsTheInterfaceThatDesktopsCall) {
  start();
  const QString xml = shell.introspection().simplified();
  for (const QString &method :
       {u"<method name=\"Activate\"> <arg name=\"platform_data\" type=\"a{sv}\""_s,
        u"<method name=\"Open\"> <arg name=\"uris\" type=\"as\""_s,
        u"<method name=\"ActivateAction\"> <arg name=\"action_name\" type=\"s\" direction=\"in\"/> "
        "<arg name=\"parameter\" type=\"av\""_s}) {
    EXPECT_TRUE(xml.contains(method)) << method.toStdString() << "\n" << xml.toStdString();
  }
}

/// The program is started by the bus.
class BusStartedInterfaceTest : public ApplicationInterfaceTest {
 protected:
  BusStartedInterfaceTest() {
    const QString script = directory.filePath(u"start.sh"_s);
    write(script, u"#!/bin/sh\nexec '%1' > '%2'\n"_s.arg(QStringLiteral(INSTANCE_PROBE), record));
    QFile::setPermissions(script, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    write(bus.serviceDirectory() + u"/org.lanternix.Lanternix.service"_s,
          u"[D-BUS Service]\nName=org.lanternix.Lanternix\nExec=%1\n"_s.arg(script));
    shell.setStartEnvironment(environment);
  }
  ~BusStartedInterfaceTest() override {
    if (const std::optional<qint64> process = shell.process()) {
      ::kill(static_cast<pid_t>(*process), SIGTERM);
    }
  }

  static void write(const QString &path, const QString &text) {
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(text.toUtf8());
  }
  bool hasHeard(const QByteArray &requests) {
    QByteArray heard;
    const bool isSo = waitUntil([&] {
      QFile file(record);
      heard = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
      return heard == "first\n" + requests;
    });
    EXPECT_TRUE(isSo) << heard.toStdString();
    return isSo;
  }

  const QString record = directory.filePath(u"heard"_s);
};

TEST_F(BusStartedInterfaceTest, WhatItWasStartedFor_ArrivesWithItsTokens) {
  EXPECT_EQ(shell.activateAction(u"settings"_s, tokens), QString());
  EXPECT_TRUE(hasHeard("openSettings token=wl-7 id=menu_TIME70\n"));
}

TEST_F(BusStartedInterfaceTest, ToggleThatItWasStartedFor_ShowsAndTheNextOneToggles) {
  EXPECT_EQ(shell.activateAction(u"toggle"_s), QString());
  EXPECT_EQ(shell.activateAction(u"toggle"_s), QString());
  EXPECT_TRUE(hasHeard("showPanel token= id=\ntogglePanel token= id=\n"));
}

TEST_F(BusStartedInterfaceTest, ToggleAfterAQuestionThatStartedIt_Shows) {
  EXPECT_FALSE(shell.introspection().isEmpty());
  EXPECT_EQ(shell.activateAction(u"toggle"_s), QString());
  EXPECT_TRUE(hasHeard("showPanel token= id=\n"));
}

TEST_F(BusStartedInterfaceTest, ToggleAfterAnotherRequest_Toggles) {
  EXPECT_EQ(shell.activate(), QString());
  EXPECT_EQ(shell.activateAction(u"toggle"_s), QString());
  EXPECT_TRUE(hasHeard("showPanel token= id=\ntogglePanel token= id=\n"));
}

}  // namespace
}  // namespace lanternix
