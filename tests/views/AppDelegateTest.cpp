#include "views/AppDelegateTest.h"

#include "Platform/ActivationToken.h"

#include <QtWidgets/QDialog>

#include <optional>
#include <utility>

using namespace Qt::StringLiterals;

namespace lanternix {

namespace {

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

/// Requests for the settings, each of which the user expects one window to answer.
class SettingsAnswerTest : public AppDelegateTest {
 protected:
  void SetUp() override {
    delegate = std::make_unique<AppDelegate>(doors(), recorder, mouseMonitor, loginItem);
    delegate->applicationDidFinishLaunching();
  }
  void TearDown() override { delegate.reset(); }

  void askForSettings() {
    recorder.noteRequest({});
    delegate->openSettings();
  }

  AnswerRecorder recorder;
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

TEST_F(SettingsAnswerTest, SettingsAskedForOverTheVisiblePanel_AreTheAnswer) {
  delegate->showPanel();
  askForSettings();
  EXPECT_EQ(recorder.answered, u"Lanternix Settings"_s);
  EXPECT_FALSE(panel()->isVisible());
}

TEST_F(SettingsAnswerTest, QuestionOverTheSettings_IsTheAnswer) {
  askForSettings();
  QDialog question(settings());
  question.setWindowTitle(u"Sure?"_s);
  question.open();
  askForSettings();
  EXPECT_EQ(recorder.answered, u"Sure?"_s);
}

// What the desktop's own file dialog is to Qt.
TEST_F(SettingsAnswerTest, DialogOfTheDesktopOverTheSettings_LeavesTheAnswerToThem) {
  askForSettings();
  QDialog outside(settings());
  outside.setAttribute(Qt::WA_DontShowOnScreen);
  outside.open();
  ASSERT_EQ(QGuiApplication::modalWindow(), outside.windowHandle());
  askForSettings();
  EXPECT_EQ(recorder.answered, u"Lanternix Settings"_s);
}

TEST_F(SettingsAnswerTest, EditorUnderADialogOfTheDesktop_IsTheAnswer) {
  askForSettings();
  QDialog editor(settings());
  editor.setWindowTitle(u"Editor"_s);
  editor.open();
  QDialog outside(&editor);
  outside.setAttribute(Qt::WA_DontShowOnScreen);
  outside.open();
  ASSERT_EQ(QGuiApplication::modalWindow(), outside.windowHandle());
  askForSettings();
  EXPECT_EQ(recorder.answered, u"Editor"_s);
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
