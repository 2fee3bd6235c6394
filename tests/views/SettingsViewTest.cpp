#include "Platform/LoginItem.h"
#include "Views/Settings/AboutTab.h"
#include "Views/Settings/DataSettingsTab.h"
#include "Views/Settings/GeneralSettingsTab.h"
#include "Views/Settings/GroupsSettingsTab.h"
#include "Views/Settings/SettingsAccessibility.h"
#include "Views/Settings/SettingsTabStrip.h"
#include "Views/Settings/SettingsView.h"
#include "Views/Settings/ShortcutRecorderView.h"
#include "Views/Style/Contrast.h"
#include "Views/Style/Palettes.h"
#include "support/FakeFileChooser.h"
#include "views/ViewTest.h"

#include <QtGui/QAccessible>
#include <QtGui/QGuiApplication>
#include <QtGui/QWindow>
#include <QtTest/QTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QPushButton>

namespace lanternix {

namespace {

using namespace Qt::StringLiterals;

class SettingsViewTest : public ViewTest {
 protected:
  void SetUp() override {
    SettingsAccessibility::install();
    state = makeState();
    view = std::make_unique<SettingsView>(*state, loginItem, fileChooser);
    strip = view->findChild<SettingsTabStrip *>();
    view->present();
    ASSERT_TRUE(QTest::qWaitForWindowActive(view.get()));
  }

  void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
    QTest::keyClick(view->windowHandle(), key, modifiers);
  }
  QString shownTab() const { return strip->tabText(strip->currentIndex()); }
  template <typename Tab>
  bool isShown() const {
    const auto *tab = view->findChild<Tab *>();
    return tab != nullptr && tab->isVisible();
  }

  NullLoginItem loginItem;
  FakeFileChooser fileChooser;
  std::unique_ptr<AppState> state;
  std::unique_ptr<SettingsView> view;
  SettingsTabStrip *strip = nullptr;
};

}  // namespace

TEST_F(SettingsViewTest, IsAnOrdinaryWindowWithItsTitle) {
  EXPECT_EQ(view->windowTitle(), u"Lanternix Settings"_s);
  EXPECT_EQ(view->windowType(), Qt::Window);
}

TEST_F(SettingsViewTest, Files_AreChosenByTheChooserThatItWasGiven) {
  constexpr int dataTab = 2;
  strip->setCurrentIndex(dataTab);
  for (auto *each : view->findChildren<QPushButton *>()) {
    if (each->text() == u"Import..."_s) {
      each->click();
    }
  }
  EXPECT_EQ(fileChooser.requests.size(), 1);
}

TEST_F(SettingsViewTest, IsNeverSmallerThan600By480) {
  view->resize(100, 100);
  EXPECT_EQ(view->size(), QSize(600, 480));
  EXPECT_EQ(view->maximumSize(), QSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX));
}

TEST_F(SettingsViewTest, HasFourTabsInOrderAndShowsTheFirst) {
  QStringList names;
  QStringList symbols;
  for (int index = 0; index < strip->count(); ++index) {
    names.append(strip->tabText(index));
    symbols.append(strip->tabData(index).toString());
  }
  EXPECT_EQ(names, (QStringList{u"Groups"_s, u"Settings"_s, u"Data"_s, u"About"_s}));
  EXPECT_EQ(symbols, (QStringList{u"folder"_s, u"gear"_s, u"externaldrive"_s, u"info.circle"_s}));
  EXPECT_EQ(shownTab(), u"Groups"_s);
  EXPECT_TRUE(isShown<GroupsSettingsTab>());
}

TEST_F(SettingsViewTest, AClick_ShowsATab) {
  QTest::mouseClick(strip, Qt::LeftButton, {}, strip->tabRect(1).center());
  EXPECT_TRUE(isShown<GeneralSettingsTab>());
  EXPECT_FALSE(isShown<GroupsSettingsTab>());
  QTest::mouseClick(strip, Qt::LeftButton, {}, strip->tabRect(2).center());
  EXPECT_TRUE(isShown<DataSettingsTab>());
  QTest::mouseClick(strip, Qt::LeftButton, {}, strip->tabRect(3).center());
  EXPECT_TRUE(isShown<AboutTab>());
}

TEST_F(SettingsViewTest, TheStrip_StandsInTheMiddleOfTheTop) {
  EXPECT_NEAR(strip->geometry().center().x(), view->rect().center().x(), 1);
  EXPECT_LT(strip->geometry().bottom(), 80);
}

TEST_F(SettingsViewTest, LeftAndRight_MoveWithinTheStrip) {
  strip->setFocus();
  press(Qt::Key_Right);
  EXPECT_EQ(shownTab(), u"Settings"_s);
  press(Qt::Key_Left);
  EXPECT_EQ(shownTab(), u"Groups"_s);
}

TEST_F(SettingsViewTest, ControlTab_GoesRoundFromAnywhere) {
  strip->setCurrentIndex(1);
  view->findChild<ShortcutRecorderView *>()->setFocus();
  press(Qt::Key_Tab, Qt::ControlModifier);
  EXPECT_EQ(shownTab(), u"Data"_s);
  press(Qt::Key_Tab, Qt::ControlModifier);
  press(Qt::Key_Tab, Qt::ControlModifier);
  EXPECT_EQ(shownTab(), u"Groups"_s);
  press(Qt::Key_Backtab, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(shownTab(), u"About"_s);
}

TEST_F(SettingsViewTest, ControlPageDownAndUp_DoTheSame) {
  press(Qt::Key_PageDown, Qt::ControlModifier);
  EXPECT_EQ(shownTab(), u"Settings"_s);
  press(Qt::Key_PageUp, Qt::ControlModifier);
  press(Qt::Key_PageUp, Qt::ControlModifier);
  EXPECT_EQ(shownTab(), u"About"_s);
}

TEST_F(SettingsViewTest, ControlW_ClosesIt) {
  press(Qt::Key_W, Qt::ControlModifier);
  EXPECT_FALSE(view->isVisible());
}

TEST_F(SettingsViewTest, CommandW_ClosesIt) {
  press(Qt::Key_W, Qt::MetaModifier);
  EXPECT_FALSE(view->isVisible());
}

TEST_F(SettingsViewTest, Escape_DoesNothing) {
  press(Qt::Key_Escape);
  EXPECT_TRUE(view->isVisible());
  EXPECT_EQ(shownTab(), u"Groups"_s);
}

TEST_F(SettingsViewTest, OpenedAgain_ShowsTheSameTabInTheSamePlaceAndSize) {
  strip->setCurrentIndex(2);
  view->setGeometry(40, 50, 650, 500);
  view->close();
  view->present();
  EXPECT_TRUE(view->isVisible());
  EXPECT_EQ(shownTab(), u"Data"_s);
  EXPECT_EQ(view->geometry(), QRect(40, 50, 650, 500));
}

TEST_F(SettingsViewTest, OpenedAgainWithoutTheScreenItWasOn_StandsOnAnother) {
  view->setGeometry(9000, 9000, 650, 500);
  view->close();
  view->present();
  EXPECT_NE(QGuiApplication::screenAt(view->geometry().center()), nullptr);
}

TEST_F(SettingsViewTest, AnotherTab_EndsTheRecordingOfAShortcut) {
  strip->setCurrentIndex(1);
  auto *recorder = view->findChild<ShortcutRecorderView *>();
  recorder->click();
  ASSERT_TRUE(recorder->isRecording());
  strip->setCurrentIndex(0);
  EXPECT_FALSE(recorder->isRecording());
  EXPECT_TRUE(state->hotkeyService().isRegistered());
}

TEST_F(SettingsViewTest, ATab_IsMadeWhenItIsFirstShownAndKept) {
  EXPECT_EQ(view->findChild<DataSettingsTab *>(), nullptr);
  strip->setCurrentIndex(2);
  const auto *tab = view->findChild<DataSettingsTab *>();
  strip->setCurrentIndex(0);
  strip->setCurrentIndex(2);
  EXPECT_EQ(view->findChildren<DataSettingsTab *>(), QList{const_cast<DataSettingsTab *>(tab)});
}

TEST_F(SettingsViewTest, IsAWindowForScreenReaders) {
  const QAccessibleInterface *window = QAccessible::queryAccessibleInterface(view.get());
  ASSERT_NE(window, nullptr);
  EXPECT_EQ(window->role(), QAccessible::Window);
  EXPECT_EQ(window->text(QAccessible::Name), u"Lanternix Settings"_s);
}

TEST_F(SettingsViewTest, EachTab_IsAPageTabForScreenReaders) {
  QAccessibleInterface *tabs = QAccessible::queryAccessibleInterface(strip);
  ASSERT_NE(tabs, nullptr);
  EXPECT_EQ(tabs->role(), QAccessible::PageTabList);
  for (int index = 0; index < strip->count(); ++index) {
    const QAccessibleInterface *tab = tabs->child(index);
    ASSERT_NE(tab, nullptr);
    EXPECT_EQ(tab->role(), QAccessible::PageTab);
    EXPECT_EQ(tab->text(QAccessible::Name), strip->tabText(index));
    EXPECT_EQ(tab->state().focused, index == 0) << "which is how the shown one is told";
  }
}

TEST_F(SettingsViewTest, TheStrip_GrowsWithTheFont) {
  const QFont before = QApplication::font();
  const int height = strip->height();
  QFont larger = before;
  larger.setPointSizeF(before.pointSizeF() * 2);
  QApplication::setFont(larger);
  EXPECT_TRUE(QTest::qWaitFor([&] { return strip->height() > height; }));
  QApplication::setFont(before);
}

TEST_F(SettingsViewTest, TheShownTab_IsWrittenInTheAccentAndCanBeRead) {
  const QPalette before = QApplication::palette();
  for (const QPalette &palette : {Palettes::light(), Palettes::dark()}) {
    QApplication::setPalette(palette);
    QCoreApplication::processEvents();
    const QImage image = strip->grab(strip->tabRect(0)).toImage();
    const QColor ground = image.pixelColor(image.width() / 2, 3);
    EXPECT_NE(ground, palette.color(QPalette::Window));
    double strongest = 0;
    QColor ink;
    for (int y = 0; y < image.height(); ++y) {
      for (int x = 8; x < image.width() - 8; ++x) {
        const QColor color = image.pixelColor(x, y);
        if (Contrast::ratio(color, ground) > strongest) {
          strongest = Contrast::ratio(color, ground);
          ink = color;
        }
      }
    }
    EXPECT_GE(strongest, Contrast::ofText - 0.1);
    EXPECT_GT(ink.blue(), ink.red());
  }
  QApplication::setPalette(before);
}

}  // namespace lanternix
