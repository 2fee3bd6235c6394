#pragma once

#include "Views/MenuBar/MenuBarView.h"

#include <QtCore/QObject>
#include <QtWidgets/QSystemTrayIcon>

#include <memory>

namespace lanternix {

class AppState;
class SystemTray;

/// The program's item in the desktop's tray: its icon, and its menu for both mouse buttons. It is
/// there as soon as there is a tray; without one the program does without.
class StatusItem : public QObject {
  Q_OBJECT

 public:
  StatusItem(AppState &appState, const SystemTray &systemTray, QObject *parent = nullptr);

  bool eventFilter(QObject *watched, QEvent *event) override;

 Q_SIGNALS:
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
};

}  // namespace lanternix
