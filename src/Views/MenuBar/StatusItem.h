#pragma once

#include "Platform/SystemTray.h"
#include "Views/MenuBar/MenuBarView.h"

#include <QtCore/QObject>
#include <QtWidgets/QSystemTrayIcon>

#include <memory>

namespace lanternix {

class AppState;

/// The program's item in the desktop's tray: its icon, and its menu for both mouse buttons. It is
/// there as soon as there is a tray; without one the program does without.
///
/// The first tray settles for good of which kind the item is. In a tray of the other kind it
/// appears after the next start of the program only, and the log says so.
class StatusItem : public QObject {
  Q_OBJECT

 public:
  StatusItem(AppState &appState, const SystemTray &systemTray, QObject *parent = nullptr);

  bool eventFilter(QObject *watched, QEvent *event) override;

 Q_SIGNALS:
  /// The user has chosen to end the program, which is done at once.
  void quitRequested();

 private:
  void showWhereThereIsATray();
  QIcon icon() const;
  std::unique_ptr<MenuBarView> makeMenu(MenuBarView::DrawnBy drawnBy);
  void openMenu(QSystemTrayIcon::ActivationReason reason);

  AppState &m_appState;
  const SystemTray &m_systemTray;
  std::unique_ptr<MenuBarView> m_menu;      // opened by the program
  std::unique_ptr<MenuBarView> m_sentMenu;  // drawn by the tray; null where it draws none
  std::unique_ptr<QSystemTrayIcon> m_icon;
  SystemTray::Kind m_kind = SystemTray::Kind::none;  ///< of the tray that the icon was made for
};

}  // namespace lanternix
