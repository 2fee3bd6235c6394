#pragma once

#include "App/AppState.h"

#include <QtCore/QStringList>

#include <utility>

namespace lanternix {

/// Notes the change signals of a store, in the order in which they arrive.
class ChangeRecorder {
 public:
  explicit ChangeRecorder(AppState &state) {
    note(state, &AppState::groupsChanged, "groups");
    note(state, &AppState::itemsChanged, "items");
    note(state, &AppState::searchQueryChanged, "searchQuery");
    note(state, &AppState::selectedItemIdChanged, "selectedItemId");
    note(state, &AppState::isPanelVisibleChanged, "isPanelVisible");
    note(state, &AppState::showURLsChanged, "showURLs");
    note(state, &AppState::showRecentItemsChanged, "showRecentItems");
    note(state, &AppState::panelItemSizeChanged, "panelItemSize");
    note(state, &AppState::backupRetentionDaysChanged, "backupRetentionDays");
  }

  Q_DISABLE_COPY_MOVE(ChangeRecorder)

  /// The names of the properties that changed since the last call, in alphabetical order.
  QStringList take() {
    QStringList taken = std::exchange(m_changes, {});
    taken.sort();
    return taken;
  }

 private:
  void note(AppState &state, void (AppState::*signal)(), const char *property) {
    QObject::connect(&state, signal, &m_context,
                     [this, property] { m_changes.append(QString::fromLatin1(property)); });
  }

  QStringList m_changes;
  QObject m_context;  // last: gone first, so that nothing arrives in a list that is gone
};

}  // namespace lanternix
