#include "Views/Settings/ItemRowMenu.h"

#include "App/AppState.h"
#include "Views/Style/DisplayText.h"
#include "Views/Style/FillStyle.h"
#include "Views/Style/Symbol.h"

#include <algorithm>
#include <vector>

using namespace Qt::StringLiterals;

namespace lanternix {

namespace {

constexpr double widestName = 300;

/// A name as an entry: a single "&" would underline what follows, a tab begin a shortcut.
QString entryText(const QString &name, const QFont &font) {
  return DisplayText::elided(name, font, Qt::ElideMiddle, widestName).replace(u'&', u"&&"_s);
}

}  // namespace

ItemRowMenu::ItemRowMenu(AppState &appState, const PathItem &item, QWidget *parent)
    : QMenu(parent), m_appState(appState) {
  setAttribute(Qt::WA_DeleteOnClose);
  const QUuid id = item.id;
  addAction(u"Edit Item..."_s, this, [this, id] { Q_EMIT editRequested(id); });
  addAction(u"Duplicate"_s, this, [this, id] {
    if (const PathItem *present = m_appState.itemWithId(id)) {
      m_appState.duplicateItem(PathItem(*present));
    }
  });
  if (item.type == ItemType::directory || item.type == ItemType::file) {
    addAction(u"Reveal in Finder"_s, this, [this, id] {
      if (const PathItem *present = m_appState.itemWithId(id)) {
        m_appState.launcherService().revealInFinder(PathItem(*present));
      }
    });
  }
  addGroups(item);
  addSeparator();
  QAction *remove = addAction(u"Delete Item"_s, this, [this, id] { Q_EMIT deletionRequested(id); });
  remove->setProperty("destructive", true);
}

void ItemRowMenu::addGroups(const PathItem &item) {
  std::vector<const PathGroup *> others;
  for (const PathGroup &group : m_appState.groups()) {
    if (group.id != item.groupId) {
      others.push_back(&group);
    }
  }
  if (others.empty()) {
    return;
  }
  std::ranges::stable_sort(others, {}, &PathGroup::order);
  QMenu *menu = addMenu(u"Move to Group"_s);
  const double side = Symbol::sideFor(font());
  for (const PathGroup *group : others) {
    QAction *action = menu->addAction(
        entryText(group->name, font()), this,
        [this, itemId = item.id, groupId = group->id] { m_appState.moveItem(itemId, groupId); });
    action->setIcon(QPixmap::fromImage(Symbol::image(
        group->iconName, side, fillColor(FillStyle::primary, palette()), devicePixelRatioF())));
    action->setProperty("template", true);  // drawn in the colour of the text
  }
}

}  // namespace lanternix
