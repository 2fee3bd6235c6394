#pragma once

#include "App/AppDelegate.h"
#include "Platform/GlobalMouseMonitor.h"
#include "Platform/Linux/QtWindowSystem.h"
#include "Platform/LoginItem.h"
#include "Services/Preferences.h"
#include "Utilities/FloatingPanel.h"
#include "Views/Panel/PopupPanelView.h"
#include "Views/Settings/SettingsView.h"
#include "views/ViewTest.h"

#include <QtCore/QTimer>
#include <QtGui/QInputMethodEvent>
#include <QtGui/QKeyEvent>
#include <QtGui/QScreen>
#include <QtGui/QWindow>
#include <QtTest/QTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLineEdit>

#include <functional>

namespace lanternix {

/// Presses that a test makes itself.
class FakeMouseMonitor final : public GlobalMouseMonitor {
 public:
  void setActive(bool active) override { isActive = active; }
  void press() {
    if (isActive) {
      Q_EMIT pressedOutside();
    }
  }

  bool isActive = false;
};

/// Tells when the panel is about to come up.
class AnnouncingWindowSystem final : public QtWindowSystem {
 public:
  void preparePanel(QWindow & /*window*/) override { beforeShow(); }

  std::function<void()> beforeShow = [] {};
};

/// The program's own logic over its panel and settings.
class AppDelegateTest : public ViewTest {
 protected:
  /// Starts the program's own logic and shows the panel.
  void start() {
    writeData({work}, {report, notes});
    delegate = std::make_unique<AppDelegate>(doors(), windowSystem, mouseMonitor, loginItem);
    delegate->applicationDidFinishLaunching();
    delegate->showPanel();
    ASSERT_NE(panel(), nullptr);
    ASSERT_TRUE(QTest::qWaitForWindowExposed(panel()));
  }

  /// Returns when the panel should have shown itself after the start. The clock of that has been
  /// running longer than this one's.
  static void awaitFirstShow() {
    bool isPanelDue = false;
    QTimer::singleShot(300, Qt::PreciseTimer, qApp, [&isPanelDue] { isPanelDue = true; });
    ASSERT_TRUE(QTest::qWaitFor([&isPanelDue] { return isPanelDue; }));
  }

  template <typename Window>
  static Window *window() {
    for (QWidget *widget : QApplication::topLevelWidgets()) {
      if (auto *found = qobject_cast<Window *>(widget)) {
        return found;
      }
    }
    return nullptr;
  }
  static FloatingPanel *panel() { return window<FloatingPanel>(); }
  static SettingsView *settings() { return window<SettingsView>(); }

  /// Presses the key at an X key code that means an X key symbol, as a keyboard would.
  static void press(quint32 keyCode, quint32 keySymbol, Qt::KeyboardModifiers modifiers = {},
                    Qt::Key key = Qt::Key_unknown, const QString &text = {}) {
    QKeyEvent event(QEvent::KeyPress, key, modifiers, keyCode, keySymbol, 0, text);
    QCoreApplication::sendEvent(panel()->windowHandle(), &event);
  }
  static void pressEscape() { press(9, 0xff1b, {}, Qt::Key_Escape); }
  static void pressDown() { press(116, 0xff54, {}, Qt::Key_Down); }
  static void pressUp() { press(111, 0xff52, {}, Qt::Key_Up); }
  static void pressReturn(Qt::KeyboardModifiers modifiers = {}) {
    press(36, 0xff0d, modifiers, Qt::Key_Return);
  }
  static void pressComma(Qt::KeyboardModifiers modifiers) {
    press(59, ',', modifiers, Qt::Key_Comma, QStringLiteral(","));
  }

  static QLineEdit *field() { return panel()->findChild<QLineEdit *>(); }
  /// What an input method sends while something is being composed.
  static void compose(const QString &text) {
    QInputMethodEvent event(text, {});
    QCoreApplication::sendEvent(field(), &event);
  }

  static QRect workArea() { return QGuiApplication::primaryScreen()->availableGeometry(); }

  PathGroup work = group(QStringLiteral("Work"));
  PathItem report = item(QStringLiteral("Report"), work, 0, QStringLiteral("make report"));
  PathItem notes = item(QStringLiteral("Notes"), work, 1, QStringLiteral("edit notes"));
  AnnouncingWindowSystem windowSystem;
  FakeMouseMonitor mouseMonitor;
  NullLoginItem loginItem;
  std::unique_ptr<AppDelegate> delegate;
};

}  // namespace lanternix
