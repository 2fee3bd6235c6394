#include "Views/MenuBar/MenuBarView.h"

#include "App/AppState.h"
#include "Views/Style/DisplayText.h"
#include "Views/Style/SymbolIcon.h"

#include <QtCore/QEvent>

using namespace Qt::StringLiterals;

namespace lanternix {

namespace {

constexpr double widestLabel = 320;  // logical pixels

/// For menus that are sent to the desktop. There "_" marks the access key and, doubled, stands for
/// itself; Qt turns the first "&" into such a mark, unless it is the last character, and no other.
QString withoutSentMnemonics(QString text) {
  text.replace(u'_', u"__"_s);
  const qsizetype first = text.indexOf(u'&');
  return first < 0 || first == text.size() - 1 ? text : text.insert(first, u'&');
}

}  // namespace

MenuBarView::MenuBarView(AppState &appState, DrawnBy drawnBy, QWidget *parent)
    : QMenu(u"Lanternix"_s, parent), m_appState(appState), m_drawnBy(drawnBy) {
  addFixedEntries();
  updateRecentItems();
  connect(&appState, &AppState::itemsChanged, this, &MenuBarView::updateRecentItems);
}

/// An entry does its work when the menu is gone and whoever pressed it is done: that work may well
/// change the entries.
template <typename Handler>
QAction *MenuBarView::makeAction(const QString &text, Handler handler) {
  auto *action = new QAction(text, this);
  connect(action, &QAction::triggered, this, handler, Qt::QueuedConnection);
  return action;
}

void MenuBarView::addFixedEntries() {
  m_showPanel = makeAction(u"Show Panel"_s, [this] {
    if (m_appState.onShowPanel) {
      m_appState.onShowPanel();
    }
  });
  addAction(m_showPanel);
  addSeparator();
  addAction(makeAction(u"Settings..."_s, [this] {
    if (m_appState.onOpenSettings) {
      m_appState.onOpenSettings();
    }
  }));
  addSeparator();
  addAction(makeAction(u"Quit Lanternix"_s, [this] { Q_EMIT quitRequested(); }));
}

void MenuBarView::changeEvent(QEvent *event) {
  QMenu::changeEvent(event);
  const bool isOfLook =
      event->type() == QEvent::FontChange || event->type() == QEvent::PaletteChange;
  if (isOfLook && m_showPanel != nullptr) {
    replaceRecentItems({});
    updateRecentItems();
  }
}

void MenuBarView::updateRecentItems() {
  QList<Entry> entries;
  const QList<PathItem> items = m_appState.recentItems();
  for (const PathItem &item : items) {
    entries.append({item.id, label(item.name), item.type});
  }
  if (entries != m_recentEntries) {
    replaceRecentItems(entries);
  }
}

// New entries rather than new texts on the old ones: whoever chooses an entry that a desktop still
// shows must not get the item that has taken its place.
void MenuBarView::replaceRecentItems(const QList<Entry> &entries) {
  for (QAction *action : std::as_const(m_recentActions)) {
    removeAction(action);
    action->deleteLater();
  }
  m_recentActions.clear();
  m_recentEntries = entries;
  if (entries.isEmpty()) {
    return;
  }
  auto *title = new QAction(u"Recent"_s, this);
  title->setEnabled(false);
  m_recentActions.append(title);
  for (const Entry &entry : entries) {
    QAction *action = makeAction(entry.label, [this, id = entry.id] { open(id); });
    action->setIcon(symbolIcon(systemImage(entry.type)));
    m_recentActions.append(action);
  }
  auto *divider = new QAction(this);
  divider->setSeparator(true);
  m_recentActions.append(divider);
  insertActions(m_showPanel, m_recentActions);
}

void MenuBarView::open(const QUuid &itemId) {
  if (const PathItem *item = m_appState.itemWithId(itemId)) {
    m_appState.openItem(PathItem(*item));  // by value: opening changes the items
  }
}

QString MenuBarView::label(const QString &name) const {
  return m_drawnBy == DrawnBy::program
             ? DisplayText::menuEntry(name, font(), Qt::ElideRight, widestLabel)
             : withoutSentMnemonics(DisplayText::elided(name, font(), Qt::ElideRight, widestLabel));
}

}  // namespace lanternix
