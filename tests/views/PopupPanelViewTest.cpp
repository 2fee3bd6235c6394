#include "Views/Panel/EmptyStateView.h"
#include "Views/Panel/KeyHintView.h"
#include "Views/Panel/NoResultsView.h"
#include "Views/Panel/PanelFooterView.h"
#include "Views/Panel/PanelListView.h"
#include "Views/Panel/PopupPanelView.h"
#include "Views/Panel/ScopeBadgeView.h"
#include "Views/Style/SymbolButton.h"
#include "Views/Style/TextLabel.h"
#include "views/ViewTest.h"

#include <QtGui/QContextMenuEvent>
#include <QtTest/QTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>

#include <gmock/gmock.h>

namespace lanternix {

namespace {

class PopupPanelViewTest : public ViewTest {
 protected:
  void show(const QList<PathGroup> &groups, const QList<PathItem> &items) {
    state = makeState(groups, items);
    view = std::make_unique<PopupPanelView>(*state);
    view->resize(700, 500);
    view->show();
  }

  bool showsEmptyState() const { return view->findChild<EmptyStateView *>()->isVisible(); }
  bool showsNoResults() const { return view->findChild<NoResultsView *>()->isVisible(); }
  bool showsList() const { return view->findChild<PanelListView *>()->isVisible(); }
  ScopeBadgeView *badge() const { return view->findChild<ScopeBadgeView *>(); }
  QString count() const {
    return view->findChild<PanelFooterView *>()->findChild<TextLabel *>()->text();
  }

  SymbolButton *settingsButton() const {
    for (SymbolButton *button : view->findChildren<SymbolButton *>()) {
      if (button->toolTip() == QStringLiteral("Settings")) {
        return button;
      }
    }
    return nullptr;
  }
  QLineEdit *field() const { return view->findChild<QLineEdit *>(); }

  QStringList hints() const {
    QStringList names;
    for (const KeyHintView *hint : view->findChildren<KeyHintView *>()) {
      names.append(hint->accessibleName());
    }
    return names;
  }

  PathGroup work = group(QStringLiteral("Work"), 0);
  PathGroup home_ = group(QStringLiteral("Home"), 1);
  PathItem report = item(QStringLiteral("Report"), work);
  std::unique_ptr<AppState> state;
  std::unique_ptr<PopupPanelView> view;
};

}  // namespace

TEST_F(PopupPanelViewTest, WithoutGroups_ShowsTheEmptyStateAndCountsNothing) {
  show({}, {});
  EXPECT_TRUE(showsEmptyState());
  EXPECT_FALSE(showsNoResults());
  EXPECT_FALSE(showsList());
  EXPECT_EQ(count(), QStringLiteral("0 items"));
}

TEST_F(PopupPanelViewTest, ASearchWithoutMatches_WithRecentItemsHidden_ShowsBothMessages) {
  show({work}, {opened(report, 1)});
  state->setShowRecentItems(false);
  state->setSearchQuery(QStringLiteral("zebra"));
  EXPECT_TRUE(showsEmptyState());
  EXPECT_TRUE(showsNoResults());
}

TEST_F(PopupPanelViewTest, ASearchWithoutMatches_WithRecentItems_ShowsOnlyNoResults) {
  show({work}, {opened(report, 1)});
  state->setSearchQuery(QStringLiteral("zebra"));
  EXPECT_FALSE(showsEmptyState());
  EXPECT_TRUE(showsNoResults());
}

TEST_F(PopupPanelViewTest, AGroupWithoutItems_IsNotTheEmptyState) {
  show({work}, {});
  EXPECT_TRUE(showsList());
  EXPECT_FALSE(showsEmptyState());
}

TEST_F(PopupPanelViewTest, RecentItemsWithoutGroups_AreNotTheEmptyState) {
  show({}, {opened(report, 1)});
  EXPECT_TRUE(showsList());
}

TEST_F(PopupPanelViewTest, TheFirstGroup_TakesThePlaceOfTheEmptyState) {
  show({}, {});
  state->addGroup(work);
  EXPECT_TRUE(showsList());
  EXPECT_FALSE(showsEmptyState());
}

TEST_F(PopupPanelViewTest, TheScopeBadge_NamesTheScopedGroups) {
  PathGroup first = group(QStringLiteral("Work at home"), 1);
  PathGroup second = group(QStringLiteral("Homework"), 0);
  show({first, second}, {});
  EXPECT_FALSE(badge()->isVisible());
  state->setSearchQuery(QStringLiteral("home:"));
  EXPECT_TRUE(badge()->isVisible());
  EXPECT_EQ(badge()->names(), QStringLiteral("Work at home, Homework"));
  state->setSearchQuery(QStringLiteral("home"));
  EXPECT_FALSE(badge()->isVisible());
}

TEST_F(PopupPanelViewTest, TheCount_IsOfAllItems_AlsoWhileSearching) {
  show({work}, {report, item(QStringLiteral("Notes"), work, 1)});
  state->setSearchQuery(QStringLiteral("rep"));
  EXPECT_EQ(count(), QStringLiteral("2 items"));
  state->deleteItem(report.id);
  EXPECT_EQ(count(), QStringLiteral("1 items"));
}

TEST_F(PopupPanelViewTest, TheFooter_NamesTheShortcutInForce) {
  show({}, {});
  EXPECT_THAT(hints(), testing::UnorderedElementsAre(QStringLiteral("esc close"),
                                                     QStringLiteral("⇧⌘Space toggle")));
  state->hotkeyService().setCurrentShortcut({40, HotkeyShortcut::control});
  EXPECT_THAT(hints(), testing::Contains(QStringLiteral("⌃K toggle")));
}

TEST_F(PopupPanelViewTest, BothSettingsButtons_HideThePanelAndOpenTheSettings) {
  show({}, {});
  int hidden = 0;
  int opened_ = 0;
  state->onHide = [&] { ++hidden; };
  state->onOpenSettings = [&] { ++opened_; };
  QTest::mouseClick(view->findChild<QPushButton *>(), Qt::LeftButton);
  EXPECT_EQ(hidden, 1);
  EXPECT_EQ(opened_, 1);
  QTest::mouseClick(settingsButton(), Qt::LeftButton);
  EXPECT_EQ(hidden, 2);
  EXPECT_EQ(opened_, 2);
}

TEST_F(PopupPanelViewTest, DrawnOverAnOlderPicture_LooksTheSame) {
  show({work}, {report});
  view->hide();
  view->setAttribute(Qt::WA_TranslucentBackground);
  QImage picture(view->size(), QImage::Format_ARGB32_Premultiplied);
  picture.fill(Qt::transparent);
  const auto draw = [&] { view->render(&picture, {}, {}, QWidget::DrawChildren); };
  draw();
  const QImage once = picture;
  ASSERT_LT(once.pixelColor(350, 400).alpha(), 255) << "nothing shows through";
  draw();
  EXPECT_EQ(picture.pixelColor(350, 400), once.pixelColor(350, 400));
}

TEST_F(PopupPanelViewTest, ReturnOnTheSettingsButton_OpensTheSettings) {
  show({work}, {report});
  int settings = 0;
  state->onOpenSettings = [&] { ++settings; };
  QTest::keyClick(settingsButton(), Qt::Key_Return);
  QTest::keyClick(settingsButton(), Qt::Key_Enter);
  EXPECT_EQ(settings, 2);
}

TEST_F(PopupPanelViewTest, LettersTypedOverAButton_AreSearchedFor) {
  show({work}, {report});
  view->activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(view.get()));
  view->focusSearch();
  QTest::keyClick(field(), Qt::Key_E);
  settingsButton()->setFocus(Qt::TabFocusReason);
  for (const char letter : {'r', 'e', 'p'}) {
    QTest::keyClick(QApplication::focusWidget(), letter);
  }
  EXPECT_EQ(state->searchQuery(), QStringLiteral("erep"));
  EXPECT_TRUE(field()->hasFocus());
  settingsButton()->setFocus(Qt::TabFocusReason);
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backspace);
  EXPECT_EQ(state->searchQuery(), QStringLiteral("ere"));
}

TEST_F(PopupPanelViewTest, CommandsOverAButton_AreNotSearchedFor) {
  show({work}, {report});
  view->activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(view.get()));
  settingsButton()->setFocus(Qt::TabFocusReason);
  for (const Qt::KeyboardModifier command :
       {Qt::ControlModifier, Qt::AltModifier, Qt::MetaModifier}) {
    QTest::keyClick(settingsButton(), 'q', command);
  }
  QTest::keyClick(settingsButton(), Qt::Key_Delete);
  EXPECT_EQ(state->searchQuery(), QString());
  EXPECT_TRUE(settingsButton()->hasFocus());
}

TEST_F(PopupPanelViewTest, TheMenuKeysOverAButton_OpenTheMenuOfTheSelectedItem) {
  show({work}, {report});
  state->navigateDown();
  settingsButton()->setFocus(Qt::TabFocusReason);
  QContextMenuEvent menuKey(QContextMenuEvent::Keyboard, {}, {});
  QApplication::sendEvent(settingsButton(), &menuKey);
  ASSERT_NE(QApplication::activePopupWidget(), nullptr);
  QApplication::activePopupWidget()->close();
  QTest::keyClick(settingsButton(), Qt::Key_F10, Qt::ShiftModifier);
  ASSERT_NE(QApplication::activePopupWidget(), nullptr);
  QApplication::activePopupWidget()->close();
}

}  // namespace lanternix
