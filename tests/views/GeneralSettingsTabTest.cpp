#include "Platform/LoginItem.h"
#include "Services/Preferences.h"
#include "Views/Controls/FormSection.h"
#include "Views/Controls/SegmentedPicker.h"
#include "Views/Controls/ToggleSwitch.h"
#include "Views/Settings/GeneralSettingsTab.h"
#include "Views/Settings/ShortcutRecorderView.h"
#include "Views/Style/TextLabel.h"
#include "support/HarnessError.h"
#include "views/ViewTest.h"

#include <QtTest/QTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QRadioButton>

namespace lanternix {

namespace {

using namespace Qt::StringLiterals;

/// A desktop whose answers a test chooses.
class FakeLoginItem final : public LoginItem {
 public:
  Status status() const override { return current; }
  std::optional<QString> registerItem() override { return become(afterRegistering); }
  std::optional<QString> unregisterItem() override { return become(Status::notRegistered); }

  Status current = Status::notRegistered;
  Status afterRegistering = Status::enabled;
  /// What every change fails with.
  std::optional<QString> error;

 private:
  std::optional<QString> become(Status status) {
    if (!error) {
      current = status;
    }
    return error;
  }
};

class GeneralSettingsTabTest : public ViewTest {
 protected:
  void SetUp() override { makeTab(); }

  void makeTab() {
    tab.reset();
    state = makeState();
    tab = std::make_unique<GeneralSettingsTab>(*state, loginItem);
    tab->resize(600, 420);
    tab->show();
  }

  ToggleSwitch *toggle(const QString &name) const {
    for (ToggleSwitch *found : tab->findChildren<ToggleSwitch *>()) {
      if (found->accessibleName() == name) {
        return found;
      }
    }
    throw HarnessError(u"There is no switch "_s + name);
  }
  ToggleSwitch *loginToggle() const { return toggle(u"Launch Lanternix at Login"_s); }
  SegmentedPicker *picker() const { return tab->findChild<SegmentedPicker *>(); }
  QRadioButton *segment(const QString &text) const {
    for (QRadioButton *found : picker()->findChildren<QRadioButton *>()) {
      if (found->text() == text) {
        return found;
      }
    }
    throw HarnessError(u"There is no segment "_s + text);
  }
  /// All texts, in the order in which they are read.
  QStringList texts() const {
    QStringList result;
    for (const TextLabel *label : tab->findChildren<TextLabel *>()) {
      result.append(label->text());
    }
    return result;
  }
  static void click(QWidget *widget) {
    QTest::mouseClick(widget, Qt::LeftButton, {}, widget->rect().center());
  }

  FakeLoginItem loginItem;
  std::unique_ptr<AppState> state;
  std::unique_ptr<GeneralSettingsTab> tab;
};

}  // namespace

TEST_F(GeneralSettingsTabTest, HasThreeSectionsInOrder) {
  EXPECT_EQ(texts(),
            (QStringList{u"Keyboard Shortcut"_s, u"Toggle Popup Panel"_s,
                         u"Press to show or hide the quick access panel"_s, u"Panel Display"_s,
                         u"Show Paths / URLs"_s, u"Show Recent Items"_s, u"Item Size"_s,
                         u"Control how compact or spacious items appear"_s, u"Startup"_s,
                         u"Launch Lanternix at Login"_s}));
}

TEST_F(GeneralSettingsTabTest, TheRecorder_ShowsTheShortcutAndDoesNotRecord) {
  const auto *recorder = tab->findChild<ShortcutRecorderView *>();
  ASSERT_NE(recorder, nullptr);
  EXPECT_EQ(recorder->text(), u"⇧⌘Space"_s);
  EXPECT_FALSE(recorder->isRecording());
}

TEST_F(GeneralSettingsTabTest, Toggles_ShowThePreferences) {
  userDefaults.setBoolean(false, Preferences::showURLs.key);
  userDefaults.setBoolean(true, Preferences::showRecentItems.key);
  makeTab();
  EXPECT_FALSE(toggle(u"Show Paths / URLs"_s)->isChecked());
  EXPECT_TRUE(toggle(u"Show Recent Items"_s)->isChecked());
}

TEST_F(GeneralSettingsTabTest, AToggle_WritesAtOnce) {
  click(toggle(u"Show Paths / URLs"_s));
  EXPECT_FALSE(state->showURLs());
  EXPECT_FALSE(userDefaults.boolean(Preferences::showURLs.key).valueOr(true));
  click(toggle(u"Show Recent Items"_s));
  EXPECT_FALSE(state->showRecentItems());
  EXPECT_FALSE(userDefaults.boolean(Preferences::showRecentItems.key).valueOr(true));
}

TEST_F(GeneralSettingsTabTest, AToggle_TurnsBySpaceToo) {
  toggle(u"Show Paths / URLs"_s)->setFocus();
  QTest::keyClick(toggle(u"Show Paths / URLs"_s), Qt::Key_Space);
  EXPECT_FALSE(state->showURLs());
}

TEST_F(GeneralSettingsTabTest, Toggles_FollowChangesFromElsewhere) {
  state->setShowURLs(false);
  state->setShowRecentItems(false);
  EXPECT_FALSE(toggle(u"Show Paths / URLs"_s)->isChecked());
  EXPECT_FALSE(toggle(u"Show Recent Items"_s)->isChecked());
}

TEST_F(GeneralSettingsTabTest, ThePicker_OffersEverySizeOn200Pixels) {
  QStringList names;
  for (const QRadioButton *button : picker()->findChildren<QRadioButton *>()) {
    names.append(button->text());
  }
  EXPECT_EQ(names, (QStringList{u"Small"_s, u"Medium"_s, u"Large"_s}));
  EXPECT_EQ(picker()->width(), 200);
  EXPECT_EQ(picker()->accessibleName(), u"Item Size"_s);
}

TEST_F(GeneralSettingsTabTest, UnderALargeFont_ThePickerStillHasRoomForItsTexts) {
  const QFont before = QApplication::font();
  QFont larger = before;
  larger.setPointSizeF(before.pointSizeF() * 2);
  QApplication::setFont(larger);
  EXPECT_TRUE(QTest::qWaitFor([this] {
    return picker()->width() >= 3 * picker()->fontMetrics().horizontalAdvance(u"Medium"_s);
  }));
  QApplication::setFont(before);
  EXPECT_TRUE(QTest::qWaitFor([this] { return picker()->width() == 200; }));
}

TEST_F(GeneralSettingsTabTest, ASizeChosen_IsSetAndSurvivesARestart) {
  click(segment(u"Small"_s));
  EXPECT_EQ(state->panelItemSize(), PanelItemSize::small);
  click(segment(u"Large"_s));
  EXPECT_EQ(state->panelItemSize(), PanelItemSize::large);
  makeTab();
  EXPECT_EQ(state->panelItemSize(), PanelItemSize::large);
  EXPECT_TRUE(segment(u"Large"_s)->isChecked());
}

TEST_F(GeneralSettingsTabTest, TheTabKey_StopsAtTheSizeThatIsChosen) {
  EXPECT_TRUE(segment(u"Medium"_s)->focusPolicy() & Qt::TabFocus);
  EXPECT_FALSE(segment(u"Small"_s)->focusPolicy() & Qt::TabFocus);
  EXPECT_FALSE(segment(u"Large"_s)->focusPolicy() & Qt::TabFocus);
  tab->activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(tab.get()));
  segment(u"Medium"_s)->setFocus();
  QTest::keyClick(segment(u"Medium"_s), Qt::Key_Right);
  EXPECT_EQ(state->panelItemSize(), PanelItemSize::large);
  EXPECT_TRUE(segment(u"Large"_s)->focusPolicy() & Qt::TabFocus);
  EXPECT_FALSE(segment(u"Medium"_s)->focusPolicy() & Qt::TabFocus);
}

TEST_F(GeneralSettingsTabTest, ThePicker_FollowsChangesFromElsewhere) {
  EXPECT_TRUE(segment(u"Medium"_s)->isChecked());
  state->setPanelItemSize(PanelItemSize::small);
  EXPECT_TRUE(segment(u"Small"_s)->isChecked());
}

TEST_F(GeneralSettingsTabTest, LaunchAtLogin_IsOnOnlyWhenItIsEnabled) {
  using enum LoginItem::Status;
  for (const auto &[status, isOn] :
       {std::pair(notRegistered, false), std::pair(enabled, true),
        std::pair(requiresApproval, false), std::pair(notFound, false)}) {
    loginItem.current = status;
    makeTab();
    EXPECT_EQ(loginToggle()->isChecked(), isOn) << static_cast<int>(status);
  }
}

TEST_F(GeneralSettingsTabTest, LaunchAtLogin_IsRegisteredAndUnregisteredAtOnce) {
  click(loginToggle());
  EXPECT_EQ(loginItem.current, LoginItem::Status::enabled);
  EXPECT_TRUE(loginToggle()->isChecked());
  click(loginToggle());
  EXPECT_EQ(loginItem.current, LoginItem::Status::notRegistered);
  EXPECT_FALSE(loginToggle()->isChecked());
}

TEST_F(GeneralSettingsTabTest, ARegistrationThatWaitsForApproval_ShowsOff) {
  loginItem.afterRegistering = LoginItem::Status::requiresApproval;
  click(loginToggle());
  EXPECT_FALSE(loginToggle()->isChecked());
}

TEST_F(GeneralSettingsTabTest, ARegistrationThatFails_IsToldAndLeavesTheToggleOff) {
  loginItem.error = u"the directory cannot be written"_s;
  testing::internal::CaptureStdout();
  click(loginToggle());
  EXPECT_EQ(testing::internal::GetCapturedStdout(),
            "Login item error: the directory cannot be written\n");
  EXPECT_FALSE(loginToggle()->isChecked());
}

TEST_F(GeneralSettingsTabTest, ShownAgain_TheToggleAsksHowThingsStand) {
  tab->hide();
  loginItem.current = LoginItem::Status::enabled;
  tab->show();
  EXPECT_TRUE(loginToggle()->isChecked());
}

TEST_F(GeneralSettingsTabTest, BackInTheWindow_TheToggleAsksHowThingsStand) {
  QWidget window;
  tab->setParent(&window);
  tab->show();
  window.show();
  QWidget other;
  other.show();
  other.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&other));
  loginItem.current = LoginItem::Status::enabled;
  window.activateWindow();
  EXPECT_TRUE(QTest::qWaitFor([this] { return loginToggle()->isChecked(); }));
  tab->setParent(nullptr);
}

TEST_F(GeneralSettingsTabTest, EveryControl_IsNamedAndReachedByTheKeyboard) {
  QList<QWidget *> controls{tab->findChild<ShortcutRecorderView *>(), segment(u"Medium"_s)};
  for (ToggleSwitch *found : tab->findChildren<ToggleSwitch *>()) {
    EXPECT_FALSE(found->accessibleName().isEmpty());
    controls.append(found);
  }
  EXPECT_EQ(controls.size(), 5);
  for (const QWidget *control : controls) {
    EXPECT_TRUE(control->focusPolicy() & Qt::TabFocus);
  }
}

}  // namespace lanternix
