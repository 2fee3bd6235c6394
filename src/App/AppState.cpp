#include "App/AppState.h"

#include "App/AppStateListing.h"
#include "App/ItemArrangement.h"
#include "App/SearchIndex.h"
#include "Platform/Clock.h"

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace lanternix {

namespace {

template <typename Record>
auto firstWithId(QList<Record> &records, const QUuid &id) {
  return std::find_if(records.begin(), records.end(),
                      [&id](const Record &record) { return record.id == id; });
}

}  // namespace

AppState::AppState(const Doors &doors, QObject *parent)
    : QObject(parent),
      m_fileManager(doors.fileManager),
      m_userDefaults(doors.userDefaults),
      m_clock(doors.clock),
      m_storageService(doors.fileManager),
      m_hotkeyService(doors.userDefaults, doors.hotkeyRegistrar),
      m_backupService(doors.fileManager, doors.userDefaults, doors.clock),
      m_launcherService(doors.workspace, doors.processLauncher, doors.userDefaults),
      m_workspace(doors.workspace) {
  readPreferences();
  const StorageService::Data data = m_storageService.load();
  m_groups = data.groups;
  m_items = data.items;
  normalizeItemOrders();
  m_backupService.performDailyBackupIfNeeded(data, storedBackupRetentionDays());
}

AppState::~AppState() = default;

Date AppState::now() const {
  return m_clock.now();
}

// --- Groups -------------------------------------------------------------------------------------

const PathGroup *AppState::groupWithId(const QUuid &id) const {
  const auto found = std::find_if(m_groups.cbegin(), m_groups.cend(),
                                  [&id](const PathGroup &group) { return group.id == id; });
  return found == m_groups.cend() ? nullptr : &*found;
}

void AppState::addGroup(PathGroup group) {
  group.order = nextGroupOrder();
  m_groups.append(std::move(group));
  groupsDidChange();
  save();
  announceChanges();
}

void AppState::updateGroup(const PathGroup &group) {
  const auto found = firstWithId(m_groups, group.id);
  if (found == m_groups.end()) {
    return;
  }
  if (*found != group) {
    *found = group;
    groupsDidChange();
  }
  save();
  announceChanges();
}

void AppState::deleteGroup(const QUuid &id) {
  const QUuid removed = id;  // the argument may be the id of a group that is about to go
  if (m_groups.removeIf([&](const PathGroup &group) { return group.id == removed; }) > 0) {
    groupsDidChange();
  }
  if (m_items.removeIf([&](const PathItem &item) { return item.groupId == removed; }) > 0) {
    itemsDidChange(ItemChange::replaced);
  }
  save();
  announceChanges();
}

void AppState::toggleGroup(const QUuid &id) {
  const auto found = firstWithId(m_groups, id);
  if (found == m_groups.end()) {
    return;
  }
  found->isExpanded = !found->isExpanded;
  groupsDidChange();
  save();
  announceChanges();
}

// --- Items --------------------------------------------------------------------------------------

const PathItem *AppState::itemWithId(const QUuid &id) const {
  const std::optional<qsizetype> position = arrangement().firstWithId(id);
  return position.has_value() ? &m_items[*position] : nullptr;
}

void AppState::addItem(PathItem item) {
  item.order = nextItemOrder(item.groupId);
  m_items.append(std::move(item));
  itemsDidChange(ItemChange::replaced);
  save();
  announceChanges();
}

void AppState::updateItem(const PathItem &item) {
  const auto found = firstWithId(m_items, item.id);
  if (found == m_items.end()) {
    return;
  }
  if (*found != item) {
    const bool sameTexts = found->name == item.name && found->path == item.path;
    *found = item;
    itemsDidChange(sameTexts ? ItemChange::arranged : ItemChange::replaced);
  }
  save();
  announceChanges();
}

void AppState::deleteItem(const QUuid &id) {
  const QUuid removed = id;  // the argument may be the id of an item that is about to go
  if (m_items.removeIf([&](const PathItem &item) { return item.id == removed; }) > 0) {
    itemsDidChange(ItemChange::replaced);
  }
  save();
  announceChanges();
}

void AppState::duplicateItem(const PathItem &item) {
  PathItem copy = item;
  copy.id = QUuid::createUuid();
  copy.name += u" Copy"_s;
  copy.dateAdded = m_clock.now();
  copy.lastAccessed.reset();
  addItem(std::move(copy));
}

void AppState::openItem(const PathItem &item) {
  const PathItem opened = item;  // as passed, even when it is the very item that changes here
  const auto found = firstWithId(m_items, opened.id);
  if (found != m_items.end()) {
    found->lastAccessed = m_clock.now();
    itemsDidChange(ItemChange::accessed);
    save();
  }
  m_launcherService.open(opened);
  hidePanel();
}

// --- The whole data -----------------------------------------------------------------------------

std::optional<QByteArray> AppState::exportData() const {
  return m_storageService.exportJSON(m_groups, m_items);
}

void AppState::importData(QByteArrayView bytes) {
  if (const std::optional<StorageService::Data> data = m_storageService.importJSON(bytes)) {
    setData(*data);
  }
}

void AppState::restoreFromBackup(const BackupInfo &backup) {
  if (const std::optional<StorageService::Data> data = m_backupService.restore(backup)) {
    setData(*data);
  }
}

void AppState::setData(const StorageService::Data &data) {
  if (m_groups != data.groups) {
    m_groups = data.groups;
    groupsDidChange();
  }
  if (m_items != data.items) {
    m_items = data.items;
    itemsDidChange(ItemChange::replaced);
  }
  save();
  announceChanges();
}

void AppState::save() {
  m_storageService.save(m_groups, m_items);
}

// --- Panel --------------------------------------------------------------------------------------

void AppState::setSelectedItemId(const std::optional<QUuid> &id) {
  assign(m_selectedItemId, id, &AppState::selectedItemIdChanged);
  announceChanges();
}

void AppState::setPanelVisible(bool visible) {
  assign(m_isPanelVisible, visible, &AppState::isPanelVisibleChanged);
  announceChanges();
}

void AppState::hidePanel() {
  assign(m_isPanelVisible, false, &AppState::isPanelVisibleChanged);
  assignSearchQuery({});  // which clears the selection
  if (onHide) {
    onHide();
  }
  announceChanges();
}

// --- Changes ------------------------------------------------------------------------------------

void AppState::groupsDidChange() {
  m_listing.reset();
  noteChange(&AppState::groupsChanged);
}

void AppState::itemsDidChange(ItemChange change) {
  m_listing.reset();
  m_recentItems.reset();
  if (change != ItemChange::accessed) {
    m_arrangement.reset();
  }
  if (change == ItemChange::replaced) {
    m_searchIndex.reset();
  }
  noteChange(&AppState::itemsChanged);
}

void AppState::noteChange(Signal changed) {
  if (!m_unannounced.contains(changed)) {
    m_unannounced.append(changed);
  }
}

void AppState::announceChanges() {
  // A slot may call an operation, which then announces what is left of this one's changes too.
  while (!m_unannounced.isEmpty()) {
    const Signal changed = m_unannounced.takeFirst();
    Q_EMIT(this->*changed)();
  }
}

}  // namespace lanternix
