#pragma once

#include "desktop/wayland/SwaySession.h"
#include "support/WaitUntil.h"

#include <QtCore/QJsonObject>
#include <QtCore/QRect>

#include <functional>
#include <gtest/gtest.h>
#include <memory>
#include <optional>

namespace lanternix {

class AccessibilityBus;

/// The built program in a session of sway, with the shortcut that it comes with unless a test says
/// otherwise. Its items are the commands "build", "deploy" and "report", which leave a mark of
/// their name, and "surroundings", which writes down the environment it is started with.
class SwayTest : public testing::Test {
 protected:
  /// With \p configuration beside the session's own. Otherwise launch() starts a plain one.
  void startSession(const QString &configuration = {},
                    SwaySession::XServer xServer = SwaySession::XServer::yes);
  /// What the program is started with; a test may change it before.
  QProcessEnvironment &variables();

  /// Starts the program.
  void launch();
  /// The same, and waits for the panel that it shows by itself.
  void startProgram();
  /// The same, and hides the panel.
  void startHidden();

  WaylandInput &input() { return session->input(); }
  void pressShortcut() { input().tap(KEY_SPACE, {KEY_LEFTMETA, KEY_LEFTSHIFT}); }

  /// The windows as sway describes them, while they are on the screen.
  std::optional<QJsonObject> panel() const { return session->window(QStringLiteral("Lanternix")); }
  std::optional<QJsonObject> settings() const {
    return session->window(QStringLiteral("Lanternix Settings"));
  }
  bool isShown() const { return panel().has_value(); }
  bool hasKeyboard() const;
  QRect panelGeometry() const;
  bool becomesShown() const;
  bool becomesHidden() const;
  /// Whether it is shown for as long as something that hides it would take.
  bool staysShown() const;
  /// Returns once the program has nothing more to ask of sway for the panel it has just shown: a
  /// press in between would be too quick for any hand.
  void settle() const;

  /// Opens the settings from the panel and lets \p press the keys of another shortcut, which the
  /// settings then show as \p expected. \p reader was there before the program.
  void recordShortcut(AccessibilityBus &reader, const std::function<void()> &press,
                      const QString &expected);

  QString environmentFile() const { return session->home().path(QStringLiteral("environment")); }

  /// What a program of the session says.
  QString run(QStringList commandLine);

  /// Into the directory that LANTERNIX_PICTURES names, if it does, for people to look at.
  void savePicture(const QString &name) const;

  std::unique_ptr<SwaySession> session;
  std::unique_ptr<ChildProcess> program;

 private:
  std::optional<QProcessEnvironment> m_variables;
};

}  // namespace lanternix
