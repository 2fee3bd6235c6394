#pragma once

#include "Models/PanelItemSize.h"
#include "Platform/Doors.h"
#include "Services/BackupService.h"
#include "Services/HotkeyService.h"
#include "Services/LauncherService.h"
#include "Services/StorageService.h"

#include <QtCore/QObject>
#include <QtCore/QSet>

#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <vector>

namespace lanternix {

class ItemArrangement;
class SearchIndex;

/// The one store of the program: groups and items, the search, the panel's selection and the user's
/// preferences. Every view reads from it and calls its operations by name; every operation that
/// changes data writes the whole document back before it returns. All of it is for the main thread.
///
/// A signal is emitted when the operation that changed the property has done all its work, so that
/// whoever reads in a slot sees the finished state; a slot may call further operations.
class AppState : public QObject {
  Q_OBJECT

 public:
  /// Reads the preferences and the data file, registers the shortcut and makes the daily backup.
  explicit AppState(const Doors &doors, QObject *parent = nullptr);
  ~AppState() override;

  HotkeyService &hotkeyService() { return m_hotkeyService; }
  BackupService &backupService() { return m_backupService; }
  LauncherService &launcherService() { return m_launcherService; }
  const Workspace &workspace() const { return m_workspace; }
  FileManager &fileManager() { return m_fileManager; }
  /// The present moment, by the clock that all dates in the data come from.
  Date now() const;

  // --- Data, in storage order -------------------------------------------------------------------

  const QList<PathGroup> &groups() const { return m_groups; }
  const QList<PathItem> &items() const { return m_items; }
  /// The first group with this id, or null. Valid until the data change.
  const PathGroup *groupWithId(const QUuid &id) const;
  /// The first item with this id, or null. Valid until the data change.
  const PathItem *itemWithId(const QUuid &id) const;

  /// Appends \p group with the next free order.
  void addGroup(PathGroup group);
  /// Replaces the first group with the same id, whole. Unknown id: nothing.
  void updateGroup(const PathGroup &group);
  /// Removes the group and its items.
  void deleteGroup(const QUuid &id);
  /// Moves groups in display order: those at \p offsets are taken out and put, together, before the
  /// one that was at \p destination (the list's length appends). Renumbers all.
  void moveGroup(const QSet<qsizetype> &offsets, qsizetype destination);
  /// Folds or unfolds the first group with this id and saves, so that it is found that way at the
  /// next start. Unknown id: nothing.
  void toggleGroup(const QUuid &id);

  /// Appends \p item with the next free order of its group.
  void addItem(PathItem item);
  /// Replaces the first item with the same id, whole. Unknown id: nothing.
  void updateItem(const PathItem &item);
  void deleteItem(const QUuid &id);
  /// Appends a copy, named with " Copy" and never opened, at the end of the same group.
  void duplicateItem(const PathItem &item);
  /// As moveGroup(), among the items of one group in display order, searched or not.
  void moveItems(const QSet<qsizetype> &offsets, qsizetype destination, const QUuid &groupId);
  /// Gives the item to another group; its order stays as it is. Unknown ids and the item's own
  /// group: nothing.
  void moveItem(const QUuid &itemId, const QUuid &groupId);

  /// Records the access, saves, launches \p item and hides the panel. An item that is not in the
  /// store is launched all the same.
  void openItem(const PathItem &item);

  /// The whole data as one document, or none when it cannot be encoded.
  std::optional<QByteArray> exportData() const;
  /// Replaces all groups and items by those in \p bytes and saves. Not a document: nothing.
  void importData(QByteArrayView bytes);
  /// Replaces all groups and items by those of the backup and saves. Unreadable: nothing.
  void restoreFromBackup(const BackupInfo &backup);

  // --- Search -----------------------------------------------------------------------------------

  const QString &searchQuery() const { return m_searchQuery; }
  /// A non-empty query expands every group (unsaved) and selects the first match; an empty one
  /// clears the selection. Both also when the text is unchanged.
  void setSearchQuery(const QString &query);

  /// The part of the query before its first colon, or "" without a usable one.
  QString groupScopeFilter() const;
  /// The part of the query after its first colon, or the whole query without one.
  QString itemSearchTerm() const;
  /// The groups whose names contain the scope, in storage order; absent when there is no scope or
  /// it matches none.
  std::optional<QList<PathGroup>> scopedGroups() const;
  /// The groups that the panel shows, in its order.
  QList<PathGroup> filteredGroups() const;
  /// The items that the panel shows in a group, in its order.
  QList<PathItem> itemsForGroup(const QUuid &groupId) const;
  /// The five items opened last, newest first, whatever the query.
  QList<PathItem> recentItems() const;

  // --- Selection --------------------------------------------------------------------------------

  const std::optional<QUuid> &selectedItemId() const { return m_selectedItemId; }
  void setSelectedItemId(const std::optional<QUuid> &id);
  /// The items that the arrow keys walk through: recent ones first while nothing is searched, then
  /// those of each expanded group; each once.
  QList<PathItem> navigationItems() const;
  void navigateDown();
  void navigateUp();
  /// Opens the selected item, shown or not, else the first of navigationItems().
  void openSelectedOrFirstItem();

  // --- The same reads for long lists ------------------------------------------------------------
  // Positions in groups() and items() instead of copies. The first read after a change does the
  // work for all of them. Each is valid until the next operation.

  /// Where scopedGroups() are in groups(); absent when they are.
  std::optional<std::span<const qsizetype>> scopedGroupPositions() const;
  /// Where filteredGroups() are in groups().
  std::span<const qsizetype> filteredGroupPositions() const;
  /// Where itemsForGroup() are in items().
  std::span<const qsizetype> itemPositionsForGroup(const QUuid &groupId) const;
  /// Where recentItems() are in items().
  std::span<const qsizetype> recentItemPositions() const;
  /// Where navigationItems() are in items().
  std::span<const qsizetype> navigationItemPositions() const;

  // --- Panel and preferences --------------------------------------------------------------------

  bool isPanelVisible() const { return m_isPanelVisible; }
  void setPanelVisible(bool visible);
  /// Clears the search and the selection and calls `onHide`.
  void hidePanel();

  bool showURLs() const { return m_showURLs; }
  void setShowURLs(bool show);
  bool showRecentItems() const { return m_showRecentItems; }
  void setShowRecentItems(bool show);
  PanelItemSize panelItemSize() const { return m_panelItemSize; }
  void setPanelItemSize(PanelItemSize size);
  /// How many backup files are kept.
  qint64 backupRetentionDays() const { return m_backupRetentionDays; }
  void setBackupRetentionDays(qint64 count);

  /// Set once by the shell; an empty one does nothing.
  std::function<void()> onHide;
  std::function<void()> onShowPanel;
  std::function<void()> onOpenSettings;

 Q_SIGNALS:
  // Each is emitted only when the value has really changed.
  void groupsChanged();
  void itemsChanged();
  void searchQueryChanged();
  void selectedItemIdChanged();
  void isPanelVisibleChanged();
  void showURLsChanged();
  void showRecentItemsChanged();
  void panelItemSizeChanged();
  void backupRetentionDaysChanged();

 private:
  struct Listing;
  using Signal = void (AppState::*)();
  /// What an operation did to the items: set the date of an access, moved them, or anything else.
  enum class ItemChange { accessed, arranged, replaced };

  void readPreferences();
  qint64 storedBackupRetentionDays() const;
  void normalizeItemOrders();
  qint64 nextGroupOrder();
  qint64 nextItemOrder(const QUuid &groupId);
  std::vector<qsizetype> groupsInDisplayOrder() const;
  void setData(const StorageService::Data &data);
  void save();

  /// Assigns, and remembers the signal when that is a change.
  template <typename Value>
  void assign(Value &property, const Value &value, Signal changed);
  void noteChange(Signal changed);
  void groupsDidChange();
  void itemsDidChange(ItemChange change);
  void announceChanges();

  void assignSearchQuery(const QString &query);
  void navigate(qsizetype step);
  std::optional<qsizetype> selectedNavigationIndex() const;
  std::vector<qsizetype> groupsInScope() const;
  void findMatches(Listing &made) const;
  const ItemArrangement &arrangement() const;
  const SearchIndex &searchIndex() const;
  Listing &listing() const;
  QList<PathItem> itemsAt(std::span<const qsizetype> positions) const;
  QList<PathGroup> groupsAt(std::span<const qsizetype> positions) const;

  FileManager &m_fileManager;
  UserDefaults &m_userDefaults;
  Clock &m_clock;
  StorageService m_storageService;
  HotkeyService m_hotkeyService;
  BackupService m_backupService;
  LauncherService m_launcherService;
  const Workspace &m_workspace;

  QList<PathGroup> m_groups;
  QList<PathItem> m_items;
  QString m_searchQuery;
  std::optional<QUuid> m_selectedItemId;
  bool m_isPanelVisible = false;
  bool m_showURLs = true;
  bool m_showRecentItems = true;
  PanelItemSize m_panelItemSize = PanelItemSize::medium;
  qint64 m_backupRetentionDays = 0;

  // What follows from the properties, worked out at the first read after a change.
  mutable std::unique_ptr<ItemArrangement> m_arrangement;       // from the items' ids and orders
  mutable std::unique_ptr<SearchIndex> m_searchIndex;           // from the items' names and paths
  mutable std::optional<std::vector<qsizetype>> m_recentItems;  // from the items' dates
  mutable std::unique_ptr<Listing> m_listing;                   // from groups, items and query

  QList<Signal> m_unannounced;  // the signals of changes made, each once
};

template <typename Value>
void AppState::assign(Value &property, const Value &value, Signal changed) {
  if (property == value) {
    return;
  }
  property = value;
  noteChange(changed);
}

}  // namespace lanternix
