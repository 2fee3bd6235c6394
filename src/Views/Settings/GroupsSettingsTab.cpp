#include "Views/Settings/GroupsSettingsTab.h"

#include "App/AppState.h"
#include "Views/Controls/Alert.h"
#include "Views/Settings/GroupDetailView.h"
#include "Views/Settings/GroupEditorView.h"
#include "Views/Settings/GroupListView.h"
#include "Views/Settings/GroupSidebarView.h"
#include "Views/Settings/ItemEditorView.h"
#include "Views/Settings/ItemRowMenu.h"
#include "Views/Settings/ListPane.h"
#include "Views/Settings/PaneSplitter.h"
#include "Views/Style/DisplayText.h"

#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QMenu>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace lanternix {

namespace {

constexpr int sidebarWidth = 240;
constexpr int detailWidth = 360;

/// The question about \p name. Of a name that would not fit a screen, its ends.
QString deletionTitle(const QString &name) {
  constexpr qsizetype longest = 200;
  const QString shown = DisplayText::shortened(name, longest, Qt::ElideMiddle);
  return u"Delete \"%1\"?"_s.arg(DisplayText::singleLine(shown));
}

}  // namespace

GroupsSettingsTab::GroupsSettingsTab(AppState &appState, FileChooser &fileChooser, QWidget *parent)
    : QWidget(parent),
      m_appState(appState),
      m_fileChooser(fileChooser),
      m_sidebar(new GroupSidebarView(appState, this)),
      m_detail(new GroupDetailView(appState, this)),
      m_pane(new ListPane(m_detail,
                          {.symbol = u"sidebar.left"_s,
                           .symbolSide = 36,
                           .title = u"Select a group"_s,
                           .titleStyle = TextStyle::body,
                           .hint = u"Choose a group from the sidebar to manage its items"_s,
                           .hintStyle = TextStyle::subheadline},
                          this)) {
  auto *panes = new PaneSplitter(this);
  panes->addWidget(m_sidebar);
  panes->addWidget(m_pane);
  panes->setStretchFactor(0, 0);
  panes->setStretchFactor(1, 1);
  panes->setSizes({sidebarWidth, detailWidth});
  auto *layout = new QHBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(panes);
  connectSidebar();
  connectDetail();
}

void GroupsSettingsTab::connectSidebar() {
  GroupListView *list = &m_sidebar->list();
  connect(list, &RecordListView::selectedIdChanged, this, &GroupsSettingsTab::showSelectedGroup);
  connect(list, &RecordListView::menuRequested, this, &GroupsSettingsTab::showGroupMenu);
  connect(m_sidebar, &GroupSidebarView::groupRequested, this, &GroupsSettingsTab::addGroup);
  connect(m_sidebar, &GroupSidebarView::editRequested, this, &GroupsSettingsTab::editGroup);
  connect(m_sidebar, &GroupSidebarView::deletionRequested, this,
          &GroupsSettingsTab::askToDeleteGroup);
}

void GroupsSettingsTab::connectDetail() {
  RecordListView *list = &m_detail->list();
  connect(list, &RecordListView::menuRequested, this, &GroupsSettingsTab::showItemMenu);
  connect(list, &RecordListView::editRequested, this, &GroupsSettingsTab::editItem);
  connect(list, &RecordListView::deletionRequested, this, &GroupsSettingsTab::askToDeleteItem);
  connect(m_detail, &GroupDetailView::itemRequested, this, &GroupsSettingsTab::addItem);
}

const std::optional<QUuid> &GroupsSettingsTab::selectedGroupId() const {
  return m_sidebar->list().selectedId();
}

const std::optional<QUuid> &GroupsSettingsTab::selectedItemId() const {
  return m_detail->list().selectedId();
}

void GroupsSettingsTab::showSelectedGroup() {
  m_detail->setGroupId(selectedGroupId());
  m_pane->setContentShown(selectedGroupId().has_value());
}

void GroupsSettingsTab::addGroup() {
  (new GroupEditorView(m_appState, {}, window()))->open();  // deletes itself when it closes
}

void GroupsSettingsTab::editGroup(const QUuid &id) {
  if (const PathGroup *group = m_appState.groupWithId(id)) {
    (new GroupEditorView(m_appState, *group, window()))->open();  // deletes itself when it closes
  }
}

void GroupsSettingsTab::askToDeleteGroup(const QUuid &id) {
  const PathGroup *group = m_appState.groupWithId(id);
  if (group == nullptr) {
    return;
  }
  // All of them, also those that the panel's search hides.
  const auto count = std::ranges::count(m_appState.items(), id, &PathItem::groupId);
  const QString message = u"This will permanently delete the group and %1 %2 inside it."_s;
  Alert{.title = deletionTitle(group->name),
        .message = message.arg(count).arg(count == 1 ? u"item"_s : u"items"_s),
        .destructiveAction = u"Delete Group"_s}
      .show(this, [this, id] { deleteGroup(id); });
}

void GroupsSettingsTab::deleteGroup(const QUuid &id) {
  if (m_appState.groupWithId(id) != nullptr) {  // else it has gone while the question was asked
    m_appState.deleteGroup(id);
  }
}

void GroupsSettingsTab::showGroupMenu(const QUuid &id, const QPoint &position) {
  auto *menu = new QMenu(&m_sidebar->list());
  menu->setAttribute(Qt::WA_DeleteOnClose);
  menu->addAction(u"Edit Group..."_s, this, [this, id] { editGroup(id); });
  menu->addSeparator();
  menu->addAction(u"Delete Group"_s, this, [this, id] { askToDeleteGroup(id); });
  menu->popup(position);
}

void GroupsSettingsTab::addItem() {
  // Deletes itself when it closes.
  (new ItemEditorView(m_appState, m_fileChooser, {}, selectedGroupId(), window()))->open();
}

void GroupsSettingsTab::editItem(const QUuid &id) {
  if (const PathItem *item = m_appState.itemWithId(id)) {
    // Deletes itself when it closes.
    (new ItemEditorView(m_appState, m_fileChooser, *item, selectedGroupId(), window()))->open();
  }
}

void GroupsSettingsTab::askToDeleteItem(const QUuid &id) {
  const PathItem *item = m_appState.itemWithId(id);
  if (item == nullptr) {
    return;
  }
  Alert{.title = deletionTitle(item->name),
        .message = u"This item will be permanently removed."_s,
        .destructiveAction = u"Delete Item"_s}
      .show(this, [this, id] { deleteItem(id); });
}

void GroupsSettingsTab::deleteItem(const QUuid &id) {
  if (m_appState.itemWithId(id) != nullptr) {
    m_appState.deleteItem(id);
  }
}

void GroupsSettingsTab::showItemMenu(const QUuid &id, const QPoint &position) {
  const PathItem *item = m_appState.itemWithId(id);
  if (item == nullptr) {
    return;
  }
  auto *menu = new ItemRowMenu(m_appState, *item, &m_detail->list());  // which deletes itself
  connect(menu, &ItemRowMenu::editRequested, this, &GroupsSettingsTab::editItem);
  connect(menu, &ItemRowMenu::deletionRequested, this, &GroupsSettingsTab::askToDeleteItem);
  menu->popup(position);
}

}  // namespace lanternix
