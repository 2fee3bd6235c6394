#include "Views/Panel/ItemContextMenu.h"

#include "App/AppState.h"
#include "Views/Style/Destructive.h"

#include <QtGui/QClipboard>
#include <QtGui/QGuiApplication>
#include <QtWidgets/QMenu>

using namespace Qt::StringLiterals;

namespace lanternix::ItemContextMenu {

void popUp(AppState &appState, const PathItem &item, const QPoint &position, QWidget *parent) {
  auto *menu = new QMenu(parent);
  menu->setAttribute(Qt::WA_DeleteOnClose);
  if (item.type == ItemType::directory || item.type == ItemType::file) {
    menu->addAction(u"Reveal in Finder"_s, menu,
                    [&appState, item] { appState.launcherService().revealInFinder(item); });
  }
  menu->addAction(u"Duplicate"_s, menu, [&appState, item] { appState.duplicateItem(item); });
  menu->addAction(item.type == ItemType::command ? u"Copy Command"_s : u"Copy Path"_s, menu,
                  [item] { QGuiApplication::clipboard()->setText(item.path); });
  menu->addSeparator();
  QAction *remove =
      menu->addAction(u"Delete"_s, menu, [&appState, item] { appState.deleteItem(item.id); });
  markDestructive(*remove);
  menu->popup(position);
}

}  // namespace lanternix::ItemContextMenu
