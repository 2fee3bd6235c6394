#include "Views/Settings/ItemRowMenu.h"

#include "App/AppState.h"
#include "Views/Style/Destructive.h"
#include "Views/Style/DisplayText.h"
#include "Views/Style/SymbolIcon.h"

#include <algorithm>
#include <vector>

using namespace Qt::StringLiterals;

namespace lanternix {

namespace {

constexpr double widestName = 300;

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
  markDestructive(*remove);
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
  for (const PathGroup *group : others) {
    QAction *action = menu->addAction(
        DisplayText::menuEntry(group->name, font(), Qt::ElideMiddle, widestName), this,
        [this, itemId = item.id, groupId = group->id] { m_appState.moveItem(itemId, groupId); });
    action->setIcon(symbolIcon(group->iconName, group->color()));
  }
}

}  // namespace lanternix
