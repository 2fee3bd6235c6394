#include "Views/MenuBar/MenuBarView.h"
#include "views/ViewTest.h"

#include <QtGui/QPalette>
#include <QtTest/QSignalSpy>
#include <QtTest/QTest>
#include <QtWidgets/QApplication>

#include <gmock/gmock.h>

namespace lanternix {
namespace {

using namespace Qt::StringLiterals;
using DrawnBy = MenuBarView::DrawnBy;
using testing::ElementsAre;

class MenuBarViewTest : public ViewTest {
 protected:
  void start(const QList<PathItem> &items) { state = makeState({work}, items); }

  /// The menu's texts, "-" for a divider.
  static QStringList texts(const QMenu &menu) {
    QStringList texts;
    const QList<QAction *> actions = menu.actions();
    for (const QAction *action : actions) {
      texts.append(action->isSeparator() ? u"-"_s : action->text());
    }
    return texts;
  }

  /// The text of the only item, named \p name.
  QString labelOf(const QString &name, DrawnBy drawnBy) {
    start({opened(item(name, work), 1)});
    return texts(MenuBarView(*state, drawnBy)).at(1);
  }

  static QAction *action(const QMenu &menu, const QString &text) {
    const QList<QAction *> actions = menu.actions();
    for (QAction *each : actions) {
      if (each->text() == text) {
        return each;
      }
    }
    ADD_FAILURE() << "no entry " << text.toStdString();
    return nullptr;
  }

  /// Chooses an entry and waits until it has done its work.
  static void choose(const QMenu &menu, const QString &text) {
    action(menu, text)->trigger();
    QCoreApplication::processEvents();
  }

  static QImage iconOf(const QAction &action, QIcon::Mode mode = QIcon::Normal) {
    return action.icon().pixmap(QSize(24, 24), 1, mode).toImage();
  }

  PathGroup work = group(u"Work"_s);
  PathItem report = opened(item(u"Report"_s, work, 0, u"make report"_s), 100);
  PathItem notes = opened(item(u"Notes"_s, work, 1, u"edit notes"_s), 200);
  PathItem fresh = item(u"Fresh"_s, work, 2, u"freshen"_s);
  std::unique_ptr<AppState> state;
};

TEST_F(MenuBarViewTest, WithoutRecentItems_StartsWithShowPanel) {
  start({fresh});
  EXPECT_THAT(texts(MenuBarView(*state, DrawnBy::program)),
              ElementsAre(u"Show Panel"_s, u"-"_s, u"Settings..."_s, u"-"_s, u"Quit Lanternix"_s));
}

TEST_F(MenuBarViewTest, RecentItems_ComeFirst_NewestFirst) {
  start({report, notes, fresh});
  EXPECT_THAT(texts(MenuBarView(*state, DrawnBy::program)),
              ElementsAre(u"Recent"_s, u"Notes"_s, u"Report"_s, u"-"_s, u"Show Panel"_s, u"-"_s,
                          u"Settings..."_s, u"-"_s, u"Quit Lanternix"_s));
}

TEST_F(MenuBarViewTest, SectionTitle_CannotBeChosen) {
  start({report});
  const MenuBarView menu(*state, DrawnBy::program);
  EXPECT_FALSE(action(menu, u"Recent"_s)->isEnabled());
}

TEST_F(MenuBarViewTest, RecentItems_AreShownWhateverThePanelShows) {
  start({report});
  state->setShowRecentItems(false);
  state->setSearchQuery(u"nothing has this name"_s);
  EXPECT_EQ(texts(MenuBarView(*state, DrawnBy::program)).at(1), u"Report"_s);
}

TEST_F(MenuBarViewTest, RecentItems_HaveTheSymbolsOfTheirTypes) {
  QList<PathItem> items;
  for (const ItemType type : allItemTypes) {
    PathItem each = opened(item(displayName(type), work), 1);
    each.type = type;
    items.append(each);
  }
  start(items);
  const MenuBarView menu(*state, DrawnBy::program);
  QList<QImage> icons;
  for (const ItemType type : allItemTypes) {
    const QImage icon = iconOf(*action(menu, displayName(type)));
    EXPECT_FALSE(icons.contains(icon)) << displayName(type).toStdString();
    icons.append(icon);
  }
}

TEST_F(MenuBarViewTest, Entries_HaveNoKeyEquivalents) {
  start({report});
  const MenuBarView menu(*state, DrawnBy::program);
  for (const QAction *each : menu.actions()) {
    EXPECT_TRUE(each->shortcut().isEmpty()) << each->text().toStdString();
  }
}

TEST_F(MenuBarViewTest, ChosenItem_OpensAndComesFirst) {
  start({report, notes});
  const MenuBarView menu(*state, DrawnBy::program);
  choose(menu, u"Report"_s);
  EXPECT_EQ(processLauncher.launches, QStringList(u"/bin/sh -c make report"_s));
  EXPECT_EQ(texts(menu).mid(1, 2), QStringList({u"Report"_s, u"Notes"_s}));
}

TEST_F(MenuBarViewTest, ChosenItemThatWasEdited_OpensAsItIsNow) {
  start({report});
  const MenuBarView menu(*state, DrawnBy::program);
  report.path = u"make all"_s;
  state->updateItem(report);
  choose(menu, u"Report"_s);
  EXPECT_EQ(processLauncher.launches, QStringList(u"/bin/sh -c make all"_s));
}

TEST_F(MenuBarViewTest, ItemDeletedWhileItIsChosen_OpensNothing) {
  start({report, notes});
  const MenuBarView menu(*state, DrawnBy::program);
  action(menu, u"Report"_s)->trigger();
  state->deleteItem(report.id);
  QCoreApplication::processEvents();
  EXPECT_TRUE(processLauncher.launches.isEmpty());
  EXPECT_FALSE(texts(menu).contains(u"Report"_s));
}

TEST_F(MenuBarViewTest, Menu_FollowsTheItems) {
  start({report, notes});
  const MenuBarView menu(*state, DrawnBy::desktop);
  notes.name = u"Minutes"_s;
  state->updateItem(notes);
  EXPECT_EQ(texts(menu).mid(0, 3), QStringList({u"Recent"_s, u"Minutes"_s, u"Report"_s}));
  state->deleteGroup(work.id);
  EXPECT_EQ(texts(menu).first(), u"Show Panel"_s);
}

TEST_F(MenuBarViewTest, ChangesOfNoRecentItem_LeaveTheEntries) {
  start({report, fresh});
  const MenuBarView menu(*state, DrawnBy::program);
  const QList<QAction *> before = menu.actions();
  state->deleteItem(fresh.id);
  EXPECT_EQ(menu.actions(), before);
}

TEST_F(MenuBarViewTest, FixedEntries_CallTheShell) {
  start({});
  QStringList calls;
  state->onShowPanel = [&] { calls.append(u"panel"_s); };
  state->onOpenSettings = [&] { calls.append(u"settings"_s); };
  const MenuBarView menu(*state, DrawnBy::program);
  const QSignalSpy quits(&menu, &MenuBarView::quitRequested);
  choose(menu, u"Show Panel"_s);
  choose(menu, u"Settings..."_s);
  EXPECT_THAT(calls, ElementsAre(u"panel"_s, u"settings"_s));
  EXPECT_TRUE(quits.isEmpty());
  choose(menu, u"Quit Lanternix"_s);
  EXPECT_EQ(quits.size(), 1);
}

TEST_F(MenuBarViewTest, FixedEntriesWithoutAShell_DoNothing) {
  start({});
  const MenuBarView menu(*state, DrawnBy::program);
  choose(menu, u"Show Panel"_s);
  choose(menu, u"Settings..."_s);
  EXPECT_FALSE(state->isPanelVisible());
}

// --- Names
// ----------------------------------------------------------------------------------------

TEST_F(MenuBarViewTest, Names_HaveNoAccessKeysWhereTheProgramDraws) {
  EXPECT_EQ(labelOf(u"R&D && me_too"_s, DrawnBy::program), u"R&&D &&&& me_too"_s);
}

/// What a tray makes of a text that Qt sends it: Qt turns the first "&" that is not the last
/// character into the mark "_", of which two are one.
QString asTrayShows(QString text) {
  const qsizetype mark = text.indexOf(u'&');
  if (mark >= 0 && mark < text.size() - 1) {
    text[mark] = u'_';
  }
  return text.replace(u"__"_s, u"\n"_s).remove(u'_').replace(u'\n', u'_');
}

TEST_F(MenuBarViewTest, Names_AreShownByTraysAsTheyAre) {
  for (const QString &name : {u"my_file_name"_s, u"R&D"_s, u"R&D && me_too"_s, u"&"_s, u"&&"_s,
                              u"_&_"_s, u"end &"_s, u"a & b &"_s, u"_"_s, u"__"_s, u"&_"_s}) {
    EXPECT_EQ(asTrayShows(labelOf(name, DrawnBy::desktop)), name);
  }
}

TEST_F(MenuBarViewTest, HostileNames_AreOneShortLine) {
  const QString label =
      labelOf(u"two\nlines\tand \u202eturned"_s + QString(100'000, u'x'), DrawnBy::program);
  EXPECT_TRUE(label.startsWith(u"two lines and  turned"_s)) << label.toStdString();
  EXPECT_TRUE(label.endsWith(u'\u2026'));
  EXPECT_LT(label.size(), 200);
}

// --- Colours
// --------------------------------------------------------------------------------------

TEST_F(MenuBarViewTest, Symbols_FollowThePaletteAndTheChoice) {
  start({report});
  MenuBarView menu(*state, DrawnBy::desktop);
  const QPalette before = QApplication::palette();
  const QImage light = iconOf(*menu.actions().at(1));
  EXPECT_NE(iconOf(*menu.actions().at(1), QIcon::Selected), light);
  const QAction *sent = menu.actions().at(1);
  QPalette dark(QColor(40, 40, 40));
  QApplication::setPalette(dark);
  QCoreApplication::processEvents();
  EXPECT_NE(iconOf(*menu.actions().at(1)), light);
  EXPECT_NE(menu.actions().at(1), sent) << "a tray would keep the old picture";
  QApplication::setPalette(before);
}

}  // namespace
}  // namespace lanternix
