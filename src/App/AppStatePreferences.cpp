// The preferences of the store: read once at start-up, written at every assignment.
#include "App/AppState.h"
#include "Platform/UserDefaults.h"
#include "Services/Preferences.h"

namespace lanternix {

void AppState::readPreferences() {
  const auto boolean = [this](const Preference<bool> &preference) {
    return m_userDefaults.boolean(preference.key).valueOr(preference.fallback);
  };
  m_showURLs = boolean(Preferences::showURLs);
  m_showRecentItems = boolean(Preferences::showRecentItems);
  m_panelItemSize = panelItemSizeFromRawValue(
                        m_userDefaults.string(Preferences::panelItemSize.key).valueOr(QString()))
                        .value_or(Preferences::panelItemSize.fallback);
  m_backupRetentionDays = storedBackupRetentionDays();
}

qint64 AppState::storedBackupRetentionDays() const {
  const qint64 count = m_userDefaults.integer(Preferences::backupRetentionDays.key).valueOr(0);
  // Nothing in the program stores a negative count. Whoever wrote one by hand did not ask for every
  // backup to be removed, let alone for the abort with which pruning answers it.
  return count > 0 ? count : Preferences::backupRetentionDays.fallback;
}

void AppState::setShowURLs(bool show) {
  m_userDefaults.setBoolean(show, Preferences::showURLs.key);
  assign(m_showURLs, show, &AppState::showURLsChanged);
  announceChanges();
}

void AppState::setShowRecentItems(bool show) {
  m_userDefaults.setBoolean(show, Preferences::showRecentItems.key);
  assign(m_showRecentItems, show, &AppState::showRecentItemsChanged);
  announceChanges();
}

void AppState::setPanelItemSize(PanelItemSize size) {
  m_userDefaults.setString(rawValue(size), Preferences::panelItemSize.key);
  assign(m_panelItemSize, size, &AppState::panelItemSizeChanged);
  announceChanges();
}

void AppState::setBackupRetentionDays(qint64 count) {
  m_userDefaults.setInteger(count, Preferences::backupRetentionDays.key);
  assign(m_backupRetentionDays, count, &AppState::backupRetentionDaysChanged);
  announceChanges();
}

}  // namespace lanternix
