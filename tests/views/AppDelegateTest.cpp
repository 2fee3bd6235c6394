#include "App/AppDelegate.h"
#include "Platform/ActivationToken.h"
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
#include <optional>
#include <utility>

namespace lanternix {

namespace {

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

/// Keeps which window a request was answered by; none by hiding one.
class AnswerRecorder final : public QtWindowSystem {
 public:
  void noteRequest(const ActivationToken & /*token*/) override { m_isAsked = true; }
  void activate(QWindow &window) override { answer(window.title()); }
  void prepareHiding(QWindow & /*window*/) override { answer({}); }

  std::optional<QString> answered;

 private:
  void answer(const QString &title) {
    if (std::exchange(m_isAsked, false)) {
      answered = title;
    }
  }

  bool m_isAsked = false;
};

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

}  // namespace

TEST_F(AppDelegateTest, ThePanel_ShowsItselfAfterTheStart) {
  delegate = std::make_unique<AppDelegate>(doors(), windowSystem, mouseMonitor, loginItem);
  delegate->applicationDidFinishLaunching();
  EXPECT_FALSE(panel()->isVisible());
  EXPECT_TRUE(QTest::qWaitFor([] { return panel()->isVisible(); }));
  EXPECT_TRUE(delegate->appState().isPanelVisible());
}

TEST_F(AppDelegateTest, SettingsOpenedBeforeThePanelShowsItself_KeepItAway) {
  delegate = std::make_unique<AppDelegate>(doors(), windowSystem, mouseMonitor, loginItem);
  delegate->applicationDidFinishLaunching();
  delegate->openSettings();
  awaitFirstShow();
  EXPECT_FALSE(panel()->isVisible());
  EXPECT_TRUE(settings()->isVisible());
}

TEST_F(AppDelegateTest, SettingsAskedForOverTheVisiblePanel_AreTheAnswer) {
  AnswerRecorder recorder;
  delegate = std::make_unique<AppDelegate>(doors(), recorder, mouseMonitor, loginItem);
  delegate->applicationDidFinishLaunching();
  delegate->showPanel();
  recorder.noteRequest({});
  delegate->openSettings();
  EXPECT_EQ(recorder.answered, QStringLiteral("Lanternix Settings"));
  EXPECT_FALSE(panel()->isVisible());
  delegate.reset();
}

TEST_F(AppDelegateTest, ToggleBeforeThePanelShowsItself_ShowsItAndItStays) {
  delegate = std::make_unique<AppDelegate>(doors(), windowSystem, mouseMonitor, loginItem);
  delegate->applicationDidFinishLaunching();
  delegate->togglePanel();
  awaitFirstShow();
  EXPECT_TRUE(panel()->isVisible());
}

TEST_F(AppDelegateTest, PanelHiddenBeforeItWouldShowItself_StaysHidden) {
  delegate = std::make_unique<AppDelegate>(doors(), windowSystem, mouseMonitor, loginItem);
  delegate->applicationDidFinishLaunching();
  delegate->togglePanel();
  delegate->togglePanel();
  awaitFirstShow();
  EXPECT_FALSE(panel()->isVisible());
}

TEST_F(AppDelegateTest, BeforeTheStart_ThereIsNothingToShow) {
  delegate = std::make_unique<AppDelegate>(doors(), windowSystem, mouseMonitor, loginItem);
  delegate->showPanel();
  delegate->togglePanel();
  EXPECT_EQ(panel(), nullptr);
  EXPECT_FALSE(delegate->appState().isPanelVisible());
}

TEST_F(AppDelegateTest, WithoutAStoredSize_ThePanelIs700By500_SixtyPixelsAboveTheCentre) {
  start();
  const QPoint centre = workArea().center() + QPoint(1, 1);
  EXPECT_EQ(panel()->geometry(), QRect(centre.x() - 350, centre.y() - 250 - 60, 700, 500));
}

TEST_F(AppDelegateTest, AStoredSize_IsUsedPerDimension) {
  userDefaults.setReal(350, Preferences::panelWidth.key);
  userDefaults.setReal(420, Preferences::panelHeight.key);
  start();
  EXPECT_EQ(panel()->size(), QSize(700, 420));
}

TEST_F(AppDelegateTest, AStoredSizeAtTheFloor_IsKept_AndBelowIsNot) {
  userDefaults.setReal(400, Preferences::panelWidth.key);
  userDefaults.setReal(299.5, Preferences::panelHeight.key);
  start();
  EXPECT_EQ(panel()->size(), QSize(400, 500));
}

TEST_F(AppDelegateTest, AnAbsurdStoredSize_DoesNotHangOverTheScreen) {
  userDefaults.setReal(1e12, Preferences::panelWidth.key);
  userDefaults.setReal(1e12, Preferences::panelHeight.key);
  start();
  EXPECT_EQ(panel()->geometry(), workArea());
}

TEST_F(AppDelegateTest, AfterAResize_TheNextShowUsesTheSizeAndRecentres) {
  start();
  panel()->setGeometry(0, 0, 620, 410);
  Q_EMIT panel()->didEndLiveResize();
  delegate->appState().hidePanel();
  delegate->showPanel();
  const QPoint centre = workArea().center() + QPoint(1, 1);
  EXPECT_EQ(panel()->geometry(), QRect(centre.x() - 310, centre.y() - 205 - 60, 620, 410));
}

TEST_F(AppDelegateTest, TheShortcut_HidesAndShows) {
  start();
  hotkeyRegistrar.press();
  EXPECT_TRUE(QTest::qWaitFor([] { return !panel()->isVisible(); }));
  hotkeyRegistrar.press();
  EXPECT_TRUE(QTest::qWaitFor([] { return panel()->isVisible(); }));
}

TEST_F(AppDelegateTest, Escape_HidesAndClearsSearchAndSelection) {
  start();
  delegate->appState().setSearchQuery(QStringLiteral("rep"));
  pressEscape();
  EXPECT_FALSE(panel()->isVisible());
  EXPECT_FALSE(delegate->appState().isPanelVisible());
  EXPECT_EQ(delegate->appState().searchQuery(), QString());
  EXPECT_FALSE(delegate->appState().selectedItemId().has_value());
}

TEST_F(AppDelegateTest, TheArrows_MoveTheSelectionRoundTheEnds) {
  start();
  pressUp();
  EXPECT_EQ(delegate->appState().selectedItemId(), notes.id);
  pressDown();
  EXPECT_EQ(delegate->appState().selectedItemId(), report.id);
}

TEST_F(AppDelegateTest, Return_OpensTheSelectedItem_WhateverTheModifiers) {
  start();
  pressDown();
  pressDown();
  pressReturn(Qt::ShiftModifier);
  EXPECT_EQ(processLauncher.launches, QStringList(QStringLiteral("/bin/sh -c edit notes")));
  EXPECT_FALSE(panel()->isVisible());
}

// An input method takes the keys that it composes with; what it lets pass is meant for the panel,
// also while something is being composed.

TEST_F(AppDelegateTest, AnArrowThatAnInputMethodLetsPass_MovesTheSelection) {
  start();
  compose(QStringLiteral("ka"));
  pressDown();
  EXPECT_EQ(delegate->appState().selectedItemId(), report.id);
  EXPECT_EQ(delegate->appState().searchQuery(), QString());
}

TEST_F(AppDelegateTest, AReturnThatAnInputMethodLetsPass_OpensTheSelectedItem) {
  start();
  pressUp();
  compose(QStringLiteral("ka"));
  pressReturn();
  EXPECT_EQ(processLauncher.launches, QStringList(QStringLiteral("/bin/sh -c edit notes")));
}

TEST_F(AppDelegateTest, AnEscapeThatAnInputMethodLetsPass_HidesThePanelAndEmptiesTheField) {
  start();
  const QVariant caret = field()->inputMethodQuery(Qt::ImCursorRectangle);
  compose(QStringLiteral("ka"));
  ASSERT_NE(field()->inputMethodQuery(Qt::ImCursorRectangle), caret);
  pressEscape();
  EXPECT_FALSE(panel()->isVisible());
  EXPECT_EQ(field()->inputMethodQuery(Qt::ImCursorRectangle), caret);
}

TEST_F(AppDelegateTest, CommandComma_HidesThePanelAndOpensTheSettings) {
  start();
  pressComma(Qt::MetaModifier);
  EXPECT_FALSE(panel()->isVisible());
  ASSERT_NE(settings(), nullptr);
  EXPECT_TRUE(settings()->isVisible());
}

TEST_F(AppDelegateTest, ControlComma_DoesTheSame) {
  start();
  pressComma(Qt::ControlModifier);
  EXPECT_FALSE(panel()->isVisible());
  ASSERT_NE(settings(), nullptr);
  EXPECT_TRUE(settings()->isVisible());
}

TEST_F(AppDelegateTest, TheSettingsWindow_IsMadeOnlyWhenItIsOpened) {
  start();
  EXPECT_EQ(settings(), nullptr);
}

TEST_F(AppDelegateTest, TheSettings_OpenWithTheKeyboard) {
  start();
  delegate->appState().onOpenSettings();
  EXPECT_FALSE(panel()->isVisible());
  EXPECT_TRUE(QTest::qWaitForWindowActive(settings()));
}

TEST_F(AppDelegateTest, ASecondOpening_ShowsTheSameWindow) {
  start();
  delegate->openSettings();
  const SettingsView *first = settings();
  delegate->openSettings();
  EXPECT_EQ(settings(), first);
  settings()->close();
  delegate->openSettings();
  EXPECT_EQ(settings(), first);
  EXPECT_TRUE(settings()->isVisible());
}

TEST_F(AppDelegateTest, BeforeTheStart_TheSettingsCanBeOpenedAllTheSame) {
  delegate = std::make_unique<AppDelegate>(doors(), windowSystem, mouseMonitor, loginItem);
  delegate->openSettings();
  ASSERT_NE(settings(), nullptr);
  EXPECT_TRUE(settings()->isVisible());
}

TEST_F(AppDelegateTest, APlainComma_IsTyped) {
  start();
  panel()->activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(panel()));
  pressComma({});
  EXPECT_TRUE(panel()->isVisible());
  EXPECT_EQ(delegate->appState().searchQuery(), QStringLiteral(","));
}

TEST_F(AppDelegateTest, AKeyOnItsWayToThePanelAsItIsHidden_IsNotTyped) {
  start();
  panel()->activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(panel()));
  delegate->appState().hidePanel();
  press(38, 'a', {}, Qt::Key_A, QStringLiteral("a"));
  EXPECT_EQ(delegate->appState().searchQuery(), QString());
}

TEST_F(AppDelegateTest, APressOutside_HidesThePanel) {
  start();
  EXPECT_TRUE(mouseMonitor.isActive);
  mouseMonitor.press();
  EXPECT_FALSE(panel()->isVisible());
  EXPECT_FALSE(mouseMonitor.isActive) << "nothing may wake the program while the panel is hidden";
}

TEST_F(AppDelegateTest, APressOutside_IsWatchedForBeforeThePanelCanBeSeen) {
  start();
  delegate->togglePanel();
  ASSERT_FALSE(mouseMonitor.isActive);
  bool isWatching = false;
  windowSystem.beforeShow = [&] { isWatching = mouseMonitor.isActive; };
  delegate->togglePanel();
  EXPECT_TRUE(isWatching);
}

TEST_F(AppDelegateTest, AClosedPanel_IsAHiddenOne) {
  start();
  panel()->close();
  EXPECT_FALSE(panel()->isVisible());
  EXPECT_FALSE(delegate->appState().isPanelVisible());
}

}  // namespace lanternix
