#pragma once

#include "Views/Settings/GroupDetailView.h"
#include "Views/Settings/GroupListView.h"
#include "Views/Settings/GroupSidebarView.h"
#include "Views/Settings/GroupsSettingsTab.h"
#include "views/FormTest.h"

#include <QtGui/QContextMenuEvent>
#include <QtTest/QTest>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QApplication>
#include <QtWidgets/QDialog>
#include <QtWidgets/QLabel>
#include <QtWidgets/QMenu>

namespace lanternix {

/// The tab in a window of its own, as large as the settings are at least, over a store with two
/// groups.
class GroupsTabTest : public FormTest {
 protected:
  void show(const QList<PathGroup> &groups, const QList<PathItem> &items) {
    tab.reset();
    state = makeState(groups, items);
    tab = std::make_unique<GroupsSettingsTab>(*state, fileChooser);
    tab->resize(600, 480);
    tab->show();
    tab->activateWindow();
    QCoreApplication::processEvents();
  }
  void show() { show({work, home_}, {report, notes, plan, garden}); }

  GroupListView &groupList() const { return *tab->findChild<GroupListView *>(); }
  RecordListView &itemList() const { return tab->findChild<GroupDetailView *>()->list(); }
  QAbstractButton &button(const QString &name) const {
    for (auto *each : tab->findChildren<QAbstractButton *>()) {
      if (each->accessibleName() == name || each->text() == name) {
        return *each;
      }
    }
    throw std::logic_error("there is no such button");
  }

  static QRect rowRect(const QListView &list, int row) {
    return list.visualRect(list.model()->index(row, 0));
  }
  static QPoint middleOf(const QListView &list, int row) { return rowRect(list, row).center(); }
  static void click(const QListView &list, int row) {
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, middleOf(list, row));
  }
  static void doubleClick(const QListView &list, int row) {
    click(list, row);
    QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, middleOf(list, row));
    QTest::mouseRelease(list.viewport(), Qt::LeftButton, {}, middleOf(list, row));
    QCoreApplication::processEvents();
  }
  static void press(QWidget &widget, Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
    widget.setFocus();
    QTest::keyClick(&widget, key, modifiers);
    QCoreApplication::processEvents();
  }
  static QStringList shown(const QListView &list) {
    QStringList names;
    for (int row = 0; row < list.model()->rowCount(); ++row) {
      names.append(list.model()->index(row, 0).data().toString());
    }
    return names;
  }

  /// The texts in sight.
  QStringList texts() const {
    QStringList result;
    for (const auto *label : tab->findChildren<QLabel *>()) {
      if (label->isVisible()) {
        result.append(label->text());
      }
    }
    return result;
  }

  /// The sheet or alert over the window; null without one.
  QDialog *dialog() const { return dialogOver(*tab); }
  template <typename Dialog>
  Dialog *dialogOf() const {
    return qobject_cast<Dialog *>(dialog());
  }
  QStringList dialogTexts() const {
    QStringList result;
    for (const auto *label : dialog()->findChildren<QLabel *>()) {
      result.append(label->text());
    }
    return result;
  }
  void answer(const QString &text) const {
    for (auto *each : dialog()->findChildren<QAbstractButton *>()) {
      if (each->text() == text) {
        each->setFocus();
        QTest::keyClick(each, Qt::Key_Space);
        QCoreApplication::processEvents();
        return;
      }
    }
    FAIL() << "no answer " << qPrintable(text);
  }

  static QMenu *openMenu(QListView &list, int row) {
    QContextMenuEvent event(QContextMenuEvent::Mouse, middleOf(list, row),
                            list.viewport()->mapToGlobal(middleOf(list, row)));
    QCoreApplication::sendEvent(list.viewport(), &event);
    return qobject_cast<QMenu *>(QApplication::activePopupWidget());
  }
  static QStringList entries(const QMenu &menu) {
    QStringList result;
    for (const QAction *action : menu.actions()) {
      result.append(action->isSeparator() ? QStringLiteral("-") : action->text());
    }
    return result;
  }
  static QMenu *submenu(const QMenu &menu, const QString &text) {
    for (const QAction *action : menu.actions()) {
      if (action->text() == text) {
        return action->menu();
      }
    }
    return nullptr;
  }
  static void choose(QMenu &menu, const QString &text) {
    for (QAction *action : menu.actions()) {
      if (action->text() == text) {
        action->trigger();
        break;
      }
    }
    // A dialog that opens has closed the menu already.
    while (QWidget *popup = QApplication::activePopupWidget()) {
      popup->close();
    }
    QCoreApplication::processEvents();
  }

  PathGroup work = group(QStringLiteral("Work"), 0);
  PathGroup home_ = group(QStringLiteral("Home"), 1);
  PathItem report = item(QStringLiteral("Report"), work, 0);
  PathItem notes = item(QStringLiteral("Notes"), work, 1);
  PathItem plan = item(QStringLiteral("Plan"), work, 2);
  PathItem garden = item(QStringLiteral("Garden"), home_, 0);
  std::unique_ptr<AppState> state;
  std::unique_ptr<GroupsSettingsTab> tab;
};

}  // namespace lanternix
