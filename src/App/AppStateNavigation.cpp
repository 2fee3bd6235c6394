// The panel's selection and the keys that move it.
#include "App/AppState.h"
#include "App/AppStateListing.h"
#include "App/ItemArrangement.h"

#include <algorithm>
#include <utility>

namespace lanternix {

std::span<const qsizetype> AppState::navigationItemPositions() const {
  Listing &present = listing();
  if (present.navigationItems.has_value()) {
    return *present.navigationItems;
  }
  const ItemArrangement &arranged = arrangement();
  std::vector<qsizetype> &positions = present.navigationItems.emplace();
  std::vector<bool> seen(static_cast<std::size_t>(m_items.size()));
  const auto append = [&](std::span<const qsizetype> shown) {
    for (const qsizetype position : shown) {
      const auto identity = static_cast<std::size_t>(arranged.identityOf(position));
      if (!seen[identity]) {
        seen[identity] = true;
        positions.push_back(position);
      }
    }
  };
  const bool searching = !m_searchQuery.isEmpty();
  if (!searching) {
    append(recentItemPositions());
  }
  for (const qsizetype position : present.filteredGroups) {
    const PathGroup &group = m_groups[position];
    if (searching || group.isExpanded) {
      append(itemPositionsForGroup(group.id));
    }
  }
  return positions;
}

QList<PathItem> AppState::navigationItems() const {
  return itemsAt(navigationItemPositions());
}

std::optional<qsizetype> AppState::selectedNavigationIndex() const {
  const std::optional<qsizetype> selected =
      m_selectedItemId.has_value() ? arrangement().firstWithId(*m_selectedItemId) : std::nullopt;
  if (!selected.has_value()) {
    return {};
  }
  const std::span<const qsizetype> shown = navigationItemPositions();
  const auto found = std::find_if(shown.begin(), shown.end(), [&](qsizetype position) {
    return arrangement().identityOf(position) == *selected;
  });
  return found == shown.end() ? std::nullopt : std::optional<qsizetype>(found - shown.begin());
}

void AppState::navigateDown() {
  navigate(1);
}

void AppState::navigateUp() {
  navigate(-1);
}

void AppState::navigate(qsizetype step) {
  const std::span<const qsizetype> shown = navigationItemPositions();
  if (shown.empty()) {
    return;
  }
  const auto count = static_cast<qsizetype>(shown.size());
  // Without a selection the first step down meets the first item and the first step up the last.
  const qsizetype from = selectedNavigationIndex().value_or(step > 0 ? -1 : count);
  const auto to = static_cast<std::size_t>((from + step + count) % count);
  setSelectedItemId(std::as_const(m_items)[shown[to]].id);
}

void AppState::openSelectedOrFirstItem() {
  const PathItem *item = m_selectedItemId.has_value() ? itemWithId(*m_selectedItemId) : nullptr;
  if (item == nullptr) {
    const std::span<const qsizetype> shown = navigationItemPositions();
    if (shown.empty()) {
      return;
    }
    item = &std::as_const(m_items)[shown.front()];
  }
  openItem(*item);
}

}  // namespace lanternix
