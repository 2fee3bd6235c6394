#include "Platform/Linux/QtWindowSystem.h"
#include "Utilities/FloatingPanel.h"
#include "Views/Panel/PanelAccessibility.h"
#include "Views/Panel/PanelListModel.h"
#include "Views/Panel/PanelListView.h"
#include "Views/Panel/PopupPanelView.h"
#include "views/ViewTest.h"

#include <QtGui/QAccessible>
#include <QtTest/QTest>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QLineEdit>

namespace lanternix {

namespace {

using namespace Qt::StringLiterals;

class PanelAccessibilityTest : public ViewTest {
 protected:
  static void SetUpTestSuite() { PanelAccessibility::install(); }

  void show(const QList<PathGroup> &groups, const QList<PathItem> &items) {
    state = makeState(groups, items);
    view = std::make_unique<PopupPanelView>(*state);
    view->resize(500, 400);
    view->show();
  }

  PanelListView *listView() const { return view->findChild<PanelListView *>(); }
  QAccessibleInterface *list() const { return QAccessible::queryAccessibleInterface(listView()); }
  QAccessibleInterface *row(int index) const { return list()->child(index); }
  QStringList rowNames() const {
    QStringList result;
    for (int index = 0; index < list()->childCount(); ++index) {
      result.append(row(index)->text(QAccessible::Name));
    }
    return result;
  }
  static QString nameOf(QAccessibleInterface *about) { return about->text(QAccessible::Name); }
  static QString descriptionOf(QAccessibleInterface *about) {
    return about->text(QAccessible::Description);
  }
  static void act(QAccessibleInterface *about, const QString &action) {
    QAccessibleActionInterface *actions = about->actionInterface();
    ASSERT_NE(actions, nullptr);
    actions->doAction(action);
    QCoreApplication::processEvents();
  }

  PathGroup work = group(u"Work"_s);
  PathItem report = item(u"Report"_s, work, 0, u"make report"_s);
  PathItem notes = item(u"Notes"_s, work, 1, u"edit notes"_s);
  std::unique_ptr<AppState> state;
  std::unique_ptr<PopupPanelView> view;
};

}  // namespace

TEST_F(PanelAccessibilityTest, TheList_IsATreeOfTheRowsThatSaySomething) {
  const PathGroup empty = group(u"Empty"_s, 1);
  show({work, empty}, {opened(report, 1), notes});
  EXPECT_EQ(list()->role(), QAccessible::Tree);
  EXPECT_EQ(nameOf(list()), u"Items"_s);
  EXPECT_EQ(rowNames(), (QStringList{u"Recently Opened"_s, u"Report"_s, u"Work"_s, u"Report"_s,
                                     u"Notes"_s, u"Empty"_s, u"No items in this group"_s}));
  EXPECT_EQ(row(0)->role(), QAccessible::Heading);
  EXPECT_EQ(row(1)->role(), QAccessible::TreeItem);
  EXPECT_EQ(row(2)->role(), QAccessible::TreeItem);
  EXPECT_EQ(row(6)->role(), QAccessible::StaticText);
}

TEST_F(PanelAccessibilityTest, ARow_KnowsItsPlaceAndItsParent) {
  show({work}, {opened(report, 1), notes});
  EXPECT_EQ(list()->indexOfChild(row(3)), 3);
  EXPECT_EQ(row(3)->parent(), list());
  EXPECT_EQ(row(3)->childCount(), 0);
  EXPECT_EQ(row(3), row(3)) << "one interface a row";
  EXPECT_EQ(list()->child(-1), nullptr);
  EXPECT_EQ(list()->child(5), nullptr);
}

TEST_F(PanelAccessibilityTest, AGroup_SaysItsCountAndWhetherItIsUnfolded) {
  show({work, foldedGroup(u"Home"_s, 1)}, {report, notes});
  EXPECT_EQ(descriptionOf(row(0)), u"2 items"_s);
  EXPECT_TRUE(row(0)->state().expandable);
  EXPECT_TRUE(row(0)->state().expanded);
  EXPECT_EQ(nameOf(row(3)), u"Home"_s);
  EXPECT_EQ(descriptionOf(row(3)), u"0 items"_s);
  EXPECT_TRUE(row(3)->state().expandable);
  EXPECT_TRUE(row(3)->state().collapsed);
}

TEST_F(PanelAccessibilityTest, AGroupOfOne_SaysSoInTheSingular) {
  show({work}, {report});
  EXPECT_EQ(descriptionOf(row(0)), u"1 item"_s);
}

TEST_F(PanelAccessibilityTest, AnItem_SaysItsTypePathAndGroup) {
  report.type = ItemType::link;
  report.path = u"https://example.org"_s;
  show({work}, {report, notes});
  EXPECT_EQ(nameOf(row(1)), u"Report"_s);
  EXPECT_EQ(descriptionOf(row(1)), u"Link, https://example.org, in Work"_s);
  EXPECT_EQ(descriptionOf(row(2)), u"Command, edit notes, in Work"_s);
}

TEST_F(PanelAccessibilityTest, ABrokenItem_SaysWhatIsWrong) {
  report.type = ItemType::file;
  report.path = u"/nonexistent"_s;
  PathItem folder = item(u"Folder"_s, work, 2, u"/nonexistent/folder"_s);
  folder.type = ItemType::directory;
  notes.path = u" "_s;
  show({work}, {report, notes, folder});
  EXPECT_EQ(descriptionOf(row(1)), u"File, not found, /nonexistent, in Work"_s);
  EXPECT_TRUE(descriptionOf(row(2)).startsWith(u"Command, empty command"_s));
  EXPECT_TRUE(descriptionOf(row(3)).startsWith(u"Directory, not found"_s));
}

TEST_F(PanelAccessibilityTest, APathThatIsNotShown_IsNotSpokenEither) {
  show({work}, {report});
  state->setShowURLs(false);
  EXPECT_EQ(descriptionOf(row(1)), u"Command, in Work"_s);
}

TEST_F(PanelAccessibilityTest, TheSelectedItem_IsSelectedAndFocused) {
  show({work}, {report, notes});
  EXPECT_TRUE(row(1)->state().selectable);
  EXPECT_TRUE(row(1)->state().focusable);
  EXPECT_FALSE(row(1)->state().selected);
  state->setSelectedItemId(report.id);
  EXPECT_TRUE(row(1)->state().selected);
  EXPECT_TRUE(row(1)->state().focused);
  EXPECT_FALSE(row(2)->state().selected);
}

TEST_F(PanelAccessibilityTest, ASelectedItemThatStandsTwice_HasTheFocusOnce) {
  show({work}, {opened(report, 1), notes});
  state->setSelectedItemId(report.id);
  EXPECT_TRUE(row(1)->state().focused);
  EXPECT_TRUE(row(3)->state().selected);
  EXPECT_FALSE(row(3)->state().focused);
}

TEST_F(PanelAccessibilityTest, ARow_StandsWhereItIsDrawn) {
  show({work}, {report, notes});
  const QRect area = row(2)->rect();
  EXPECT_EQ(area.topLeft(), listView()->viewport()->mapToGlobal(listView()->rowRect(2).topLeft()));
  EXPECT_EQ(list()->childAt(area.center().x(), area.center().y()), row(2));
  EXPECT_EQ(list()->childAt(-10'000, -10'000), nullptr);
  EXPECT_FALSE(row(2)->state().offscreen);
}

TEST_F(PanelAccessibilityTest, ARowOutOfSight_SaysSo) {
  QList<PathItem> items;
  for (int i = 0; i < 100; ++i) {
    items.append(item(u"Item %1"_s.arg(i), work, i));
  }
  show({work}, items);
  EXPECT_TRUE(row(100)->state().offscreen);
}

TEST_F(PanelAccessibilityTest, ThePressOfAnItem_OpensIt) {
  show({work}, {report, notes});
  act(row(2), QAccessibleActionInterface::pressAction());
  EXPECT_EQ(processLauncher.launches, QStringList(u"/bin/sh -c edit notes"_s));
}

TEST_F(PanelAccessibilityTest, TheFocusGivenToAnItem_SelectsIt) {
  show({work}, {report, notes});
  act(row(2), QAccessibleActionInterface::setFocusAction());
  EXPECT_EQ(state->selectedItemId(), notes.id);
}

TEST_F(PanelAccessibilityTest, TheActionOfAGroup_FoldsAndUnfoldsIt) {
  show({work}, {report, notes});
  act(row(0), QAccessibleActionInterface::toggleAction());
  EXPECT_EQ(rowNames(), QStringList(u"Work"_s));
  EXPECT_TRUE(row(0)->state().collapsed);
  act(row(0), QAccessibleActionInterface::pressAction());
  EXPECT_EQ(list()->childCount(), 3);
}

TEST_F(PanelAccessibilityTest, AnActionThatARowDoesNotHave_DoesNothing) {
  show({work}, {report, notes});
  act(row(0), QAccessibleActionInterface::increaseAction());
  act(row(1), QAccessibleActionInterface::toggleAction());
  EXPECT_EQ(list()->childCount(), 3);
  EXPECT_TRUE(processLauncher.launches.isEmpty());
}

TEST_F(PanelAccessibilityTest, ASearch_LeavesTheRowsItFinds) {
  show({work}, {report, notes});
  ASSERT_EQ(list()->childCount(), 3);
  state->setSearchQuery(u"note"_s);
  EXPECT_EQ(rowNames(), (QStringList{u"Work"_s, u"Notes"_s}));
  EXPECT_EQ(descriptionOf(row(0)), u"1 item"_s);
}

TEST_F(PanelAccessibilityTest, ARowThatIsGone_CannotBeReachedAnyMore) {
  show({work}, {report, notes});
  const QAccessible::Id id = QAccessible::uniqueId(row(2));
  ASSERT_EQ(QAccessible::accessibleInterface(id), row(2));
  state->setSearchQuery(u"note"_s);
  EXPECT_EQ(QAccessible::accessibleInterface(id), nullptr);
}

TEST_F(PanelAccessibilityTest, WhenTheListEnds_ItsRowsEndToo) {
  show({work}, {report, notes});
  const QAccessible::Id id = QAccessible::uniqueId(row(2));
  view.reset();
  EXPECT_EQ(QAccessible::accessibleInterface(id), nullptr);
}

TEST_F(PanelAccessibilityTest, HostileTexts_AreHarmless) {
  report.name = QString();
  notes.name = u"a\nb\u0007c"_s + QChar(QChar::Null) + QString(100'000, u'x');
  notes.path = QString(100'000, u'\n');
  PathItem faces = item(u"x"_s + u"\U0001F600"_s.repeated(50'000), work, 2);
  show({work}, {report, notes, faces});
  EXPECT_EQ(nameOf(row(1)), QString());
  EXPECT_TRUE(nameOf(row(2)).startsWith(u"a b c x"_s));
  EXPECT_LE(nameOf(row(2)).size(), 1000);
  EXPECT_FALSE(descriptionOf(row(2)).contains(u'\n'));
  EXPECT_LE(descriptionOf(row(2)).size(), 1100);
  EXPECT_FALSE(nameOf(row(3)).back().isHighSurrogate());
}

TEST_F(PanelAccessibilityTest, TheSearchField_HasANameAndSaysWhatCanBeTyped) {
  show({work}, {report});
  auto *field = QAccessible::queryAccessibleInterface(view->findChild<QLineEdit *>());
  EXPECT_EQ(nameOf(field), u"Search"_s);
  EXPECT_EQ(descriptionOf(field), u"Search... or group: query to scope"_s);
  EXPECT_EQ(field->role(), QAccessible::EditableText);
}

TEST_F(PanelAccessibilityTest, EveryButton_IsANamedButton) {
  show({}, {});
  const QList<QAbstractButton *> buttons = view->findChildren<QAbstractButton *>();
  EXPECT_EQ(buttons.size(), 3) << "settings twice, and clear";
  for (QAbstractButton *button : buttons) {
    auto *about = QAccessible::queryAccessibleInterface(button);
    EXPECT_EQ(about->role(), QAccessible::Button) << nameOf(about).toStdString();
    EXPECT_FALSE(nameOf(about).isEmpty());
    ASSERT_NE(about->actionInterface(), nullptr);
    EXPECT_TRUE(about->actionInterface()->actionNames().contains(
        QAccessibleActionInterface::pressAction()));
  }
}

TEST_F(PanelAccessibilityTest, EveryTextThatIsShown_CanBeRead) {
  show({work}, {report});
  state->setSearchQuery(u"work: zzz"_s);
  QStringList texts;
  for (QWidget *widget : view->findChildren<QWidget *>()) {
    auto *about = QAccessible::queryAccessibleInterface(widget);
    if (widget->isVisible() &&
        (about->role() == QAccessible::StaticText || about->role() == QAccessible::Notification)) {
      texts.append(nameOf(about));
    }
  }
  texts.sort();
  const QString shortcut = state->hotkeyService().currentShortcut().displayString();
  QStringList expected{u"Lanternix"_s,
                       u"esc close"_s,
                       shortcut + u" toggle"_s,
                       u"Scope: Work"_s,
                       u"1 items"_s,
                       u"No items yet"_s,
                       u"No items yet"_s,
                       u"No results found"_s,
                       u"No results found"_s,
                       u"Open Settings to add groups and items"_s};
  expected.sort();
  EXPECT_EQ(texts, expected);
}

TEST_F(PanelAccessibilityTest, ThePanel_IsAWindowNamedLanternix) {
  QtWindowSystem windowSystem;
  FloatingPanel panel(windowSystem);
  auto *about = QAccessible::queryAccessibleInterface(&panel);
  EXPECT_EQ(about->role(), QAccessible::Window);
  EXPECT_EQ(nameOf(about), u"Lanternix"_s);
}

}  // namespace lanternix
