#pragma once

#include "Services/HotkeyService.h"
#include "Views/Settings/ShortcutRecorderView.h"
#include "views/ViewTest.h"

#include <QtGui/QKeyEvent>
#include <QtGui/QWindow>
#include <QtTest/QTest>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QVBoxLayout>

namespace lanternix {

/// A test of the recorder in a window that has the keyboard, beside a text field.
class ShortcutRecorderTest : public ViewTest {
 protected:
  /// A key as the window system describes it.
  struct Key {
    quint32 scanCode;
    quint32 keySymbol;
    Qt::Key key;
    QString text;
  };

  static Key keyK() { return {45, 'k', Qt::Key_K, QStringLiteral("k")}; }
  static Key keyEscape() { return {9, 0xff1b, Qt::Key_Escape, {}}; }
  static Key keyF5() { return {71, 0xffc2, Qt::Key_F5, {}}; }
  static Key keySpace() { return {65, ' ', Qt::Key_Space, QStringLiteral(" ")}; }

  void SetUp() override {
    auto *layout = new QVBoxLayout(&window);
    field = new QLineEdit;
    recorder = new ShortcutRecorderView(service);
    layout->addWidget(field);
    layout->addWidget(recorder);
    window.show();
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
  }

  void click() { QTest::mouseClick(recorder, Qt::LeftButton); }

  void send(QEvent::Type type, const Key &key, Qt::KeyboardModifiers modifiers,
            bool repeats = false) {
    QKeyEvent event(type, key.key, modifiers, key.scanCode, key.keySymbol, 0, key.text, repeats);
    event.ignore();
    QCoreApplication::sendEvent(window.windowHandle(), &event);
    wasOverridden = type == QEvent::ShortcutOverride && event.isAccepted();
  }
  /// As it comes from the window system, which first asks whether the key is meant for a command.
  void press(const Key &key, Qt::KeyboardModifiers modifiers = {}) {
    send(QEvent::ShortcutOverride, key, modifiers);
    send(QEvent::KeyPress, key, modifiers);
  }
  void release(const Key &key, Qt::KeyboardModifiers modifiers = {}) {
    send(QEvent::KeyRelease, key, modifiers);
  }
  void tap(const Key &key, Qt::KeyboardModifiers modifiers = {}) {
    press(key, modifiers);
    release(key, modifiers);
  }

  HotkeyService service{userDefaults, hotkeyRegistrar};
  QWidget window;
  QLineEdit *field = nullptr;
  ShortcutRecorderView *recorder = nullptr;
  bool wasOverridden = false;
};

}  // namespace lanternix
