#include "Views/MenuBar/StatusItem.h"

#include "Views/MenuBar/StatusIcon.h"
#include "Views/Style/Palettes.h"

#include <QtCore/QEvent>
#include <QtCore/QLoggingCategory>
#include <QtGui/QCursor>
#include <QtGui/QGuiApplication>
#include <QtGui/QPalette>

using namespace Qt::StringLiterals;

namespace lanternix {

namespace {

Q_LOGGING_CATEGORY(statusItem, "lanternix.tray", QtWarningMsg)

}  // namespace

StatusItem::StatusItem(AppState &appState, const SystemTray &systemTray, QObject *parent)
    : QObject(parent), m_appState(appState), m_systemTray(systemTray) {
  connect(&systemTray, &SystemTray::changed, this, &StatusItem::showWhereThereIsATray);
  showWhereThereIsATray();
}

/// Qt finds out only once, at the first icon of a program, which kind of tray there is: an icon
/// made before there is one would never be shown. One that is made stays, and Qt brings it back
/// when the tray is started anew.
void StatusItem::showWhereThereIsATray() {
  const SystemTray::Kind kind = m_systemTray.kind();
  if (kind == SystemTray::Kind::none) {
    return;
  }
  if (m_icon) {
    if (kind != m_kind) {
      // Perhaps for a moment only, while the tray of this kind is being started anew; and a desktop
      // with both kinds goes on showing the icon.
      qCInfo(statusItem) << "The icon waits for a tray of the kind that it was made for; in the"
                         << "one that is there now it appears after a new start of the program";
    }
    return;
  }
  m_kind = kind;
  m_menu = makeMenu(MenuBarView::DrawnBy::program);
  m_menu->installEventFilter(this);
  m_icon = std::make_unique<QSystemTrayIcon>(icon());
  m_icon->setToolTip(u"Lanternix"_s);
  if (kind == SystemTray::Kind::drawing) {
    m_sentMenu = makeMenu(MenuBarView::DrawnBy::desktop);
    m_icon->setContextMenu(m_sentMenu.get());
  }
  connect(m_icon.get(), &QSystemTrayIcon::activated, this, &StatusItem::openMenu);
  m_icon->show();
}

QIcon StatusItem::icon() const {
  return statusIcon(m_systemTray.isAlwaysDark() ? Palettes::dark() : QGuiApplication::palette());
}

std::unique_ptr<MenuBarView> StatusItem::makeMenu(MenuBarView::DrawnBy drawnBy) {
  auto menu = std::make_unique<MenuBarView>(m_appState, drawnBy);
  connect(menu.get(), &MenuBarView::quitRequested, this, &StatusItem::quitRequested);
  return menu;
}

// A tray that draws the menu itself asks for it only at the button that it draws nothing for.
void StatusItem::openMenu(QSystemTrayIcon::ActivationReason reason) {
  if (reason == QSystemTrayIcon::Trigger || reason == QSystemTrayIcon::Context) {
    m_menu->popup(QCursor::pos());
  }
}

bool StatusItem::eventFilter(QObject *watched, QEvent *event) {
  if (watched == m_menu.get() && event->type() == QEvent::PaletteChange && m_icon) {
    m_icon->setIcon(icon());
  }
  return false;
}

}  // namespace lanternix
