#include "gallery/SettingsStage.h"

#include "Views/Settings/SettingsTabStrip.h"
#include "gallery/PanelScene.h"
#include "support/HarnessError.h"

#include <QtCore/QCoreApplication>
#include <QtGui/QContextMenuEvent>
#include <QtGui/QPainter>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QApplication>
#include <QtWidgets/QDialog>
#include <QtWidgets/QListView>
#include <QtWidgets/QMenu>
#include <QtWidgets/QScrollArea>
#include <QtWidgets/QScrollBar>

namespace lanternix {

namespace {

using namespace Qt::StringLiterals;

/// Lets the window do what it has been told to. One round of events may leave a control that wants
/// another size at its old one.
void settle() {
  QCoreApplication::processEvents();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
}

void draw(QPainter &painter, QWidget &window, const QPoint &position) {
  painter.drawPixmap(position, window.grab());
}

/// A dialog has the window manager's frame around it; a line stands for that.
void drawDialog(QPainter &painter, QDialog &dialog, const QRect &window) {
  QRect frame(QPoint(), dialog.size());
  frame.moveCenter(window.center());
  painter.fillRect(window, QColor(0, 0, 0, 60));
  draw(painter, dialog, frame.topLeft());
  painter.setPen(QColor(0, 0, 0, 120));
  painter.drawRect(frame.adjusted(-1, -1, 0, 0));
}

}  // namespace

SettingsStage::SettingsStage(const QString &scene) {
  const PanelScene content = PanelScene::named(scene, m_store.home.root());
  m_store.writeData(content.groups, content.items);
  writeBackups();
  m_state = m_store.makeState();
  m_fileChooser.answer = m_store.home.root() + u"/Exported.json"_s;
  TemporaryHome::write(*m_fileChooser.answer, *TemporaryHome::read(m_store.home.dataFile()));
  m_window = std::make_unique<SettingsView>(*m_state, m_loginItem, m_fileChooser);
  m_window->move(40, 40);
  m_window->present();
  settle();
}

void SettingsStage::writeBackups() const {
  for (const QString &day : {u"2026-03-03"_s, u"2026-03-04"_s, u"2026-03-06"_s}) {
    TemporaryHome::write(m_store.home.backupDirectory() + u"/backup-"_s + day + u"_09-05-41.json"_s,
                         *TemporaryHome::read(m_store.home.dataFile()));
  }
}

void SettingsStage::showTab(int index) {
  m_window->findChild<SettingsTabStrip *>()->setCurrentIndex(index);
  settle();
}

QAbstractButton &SettingsStage::button(const QString &name) const {
  for (auto *each : m_window->findChildren<QAbstractButton *>()) {
    if (each->isVisible() && (each->accessibleName() == name || each->text() == name)) {
      return *each;
    }
  }
  throw HarnessError(u"there is no such button: "_s + name);
}

QListView &SettingsStage::listWith(const QString &name, int &row) const {
  for (auto *list : m_window->findChildren<QListView *>()) {
    for (row = 0; list->isVisible() && row < list->model()->rowCount(); ++row) {
      if (list->model()->index(row, 0).data().toString() == name) {
        return *list;
      }
    }
  }
  throw HarnessError(u"there is no such row: "_s + name);
}

void SettingsStage::select(const QString &name) {
  int row = 0;
  QListView &list = listWith(name, row);
  list.setCurrentIndex(list.model()->index(row, 0));
  list.setFocus();
  settle();
}

void SettingsStage::openMenu(const QString &name) {
  int row = 0;
  QListView &list = listWith(name, row);
  const QPoint place = list.visualRect(list.model()->index(row, 0)).center();
  QContextMenuEvent event(QContextMenuEvent::Mouse, place, list.viewport()->mapToGlobal(place));
  QCoreApplication::sendEvent(list.viewport(), &event);
  settle();
}

void SettingsStage::choose(const QString &entry) {
  auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
  if (menu == nullptr) {
    throw HarnessError(u"no menu is open"_s);
  }
  for (QAction *action : menu->actions()) {
    if (action->text() == entry && action->menu() != nullptr) {
      menu->setActiveAction(action);
      action->menu()->popup(menu->mapToGlobal(menu->actionGeometry(action).topRight()));
    } else if (action->text() == entry) {
      menu->close();
      action->trigger();
    }
  }
  settle();
}

void SettingsStage::click(const QString &name) {
  button(name).click();
  settle();
}

void SettingsStage::focus(const QString &name) {
  button(name).setFocus(Qt::TabFocusReason);
  settle();
}

void SettingsStage::scrollToEnd() {
  for (auto *area : m_window->findChildren<QScrollArea *>()) {
    area->verticalScrollBar()->setValue(area->verticalScrollBar()->maximum());
  }
  settle();
}

QPixmap SettingsStage::picture() const {
  QPixmap result = m_window->grab();
  QPainter painter(&result);
  for (auto *dialog : m_window->findChildren<QDialog *>()) {
    if (dialog->isVisible()) {
      drawDialog(painter, *dialog, m_window->rect());
    }
  }
  for (auto *menu : m_window->findChildren<QMenu *>()) {
    if (menu->isVisible()) {
      draw(painter, *menu, m_window->mapFromGlobal(menu->pos()));
    }
  }
  return result;
}

}  // namespace lanternix
