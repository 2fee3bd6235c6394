// What the query selects: groups by its scope, items by its term.
#include "App/AppState.h"
#include "App/AppStateListing.h"
#include "App/ItemArrangement.h"
#include "App/SearchIndex.h"
#include "Models/Blanks.h"
#include "Utilities/LocalizedText.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace lanternix {

namespace {

constexpr std::size_t recentItemLimit = 5;

std::size_t asSize(qsizetype number) {
  return static_cast<std::size_t>(number);
}

}  // namespace

void AppState::setSearchQuery(const QString &query) {
  assignSearchQuery(query);
  announceChanges();
}

void AppState::assignSearchQuery(const QString &query) {
  if (m_searchQuery != query) {
    assign(m_searchQuery, query, &AppState::searchQueryChanged);
    m_listing.reset();
  }
  if (m_searchQuery.isEmpty()) {
    assign(m_selectedItemId, {}, &AppState::selectedItemIdChanged);
    return;
  }
  const auto isFolded = [](const PathGroup &group) { return !group.isExpanded; };
  if (std::any_of(m_groups.cbegin(), m_groups.cend(), isFolded)) {
    for (PathGroup &group : m_groups) {
      group.isExpanded = true;
    }
    groupsDidChange();
  }
  const std::span<const qsizetype> shown = navigationItemPositions();
  assign(m_selectedItemId,
         shown.empty() ? std::nullopt : std::optional(std::as_const(m_items)[shown.front()].id),
         &AppState::selectedItemIdChanged);
}

QString AppState::groupScopeFilter() const {
  const qsizetype colon = m_searchQuery.indexOf(u':');
  if (colon < 0) {
    return {};
  }
  const QStringView query(m_searchQuery);
  // With nothing before the colon, what follows it names the groups.
  const QStringView scope = colon > 0 ? query.first(colon) : query.sliced(1);
  return trimmedBlanks(scope).toString();
}

QString AppState::itemSearchTerm() const {
  const qsizetype colon = m_searchQuery.indexOf(u':');
  return colon < 0 ? m_searchQuery
                   : trimmedBlanks(QStringView(m_searchQuery).sliced(colon + 1)).toString();
}

AppState::Listing &AppState::listing() const {
  if (m_listing) {
    return *m_listing;
  }
  m_listing = std::make_unique<Listing>();
  Listing &made = *m_listing;
  if (std::vector<qsizetype> scoped = groupsInScope(); !scoped.empty()) {
    for (const qsizetype position : scoped) {
      made.scopedGroupIds.insert(m_groups[position].id);
    }
    made.scopedGroups = std::move(scoped);
  }
  const bool isScoped = made.scopedGroups.has_value();
  made.filteredGroups = isScoped ? *made.scopedGroups : groupsInDisplayOrder();
  if (m_searchQuery.isEmpty() || (isScoped && itemSearchTerm().isEmpty())) {
    return made;
  }
  findMatches(made);
  std::erase_if(made.filteredGroups, [this](qsizetype position) {
    return itemPositionsForGroup(m_groups[position].id).empty();
  });
  return made;
}

std::vector<qsizetype> AppState::groupsInScope() const {
  std::vector<qsizetype> result;
  const QString scope = groupScopeFilter();
  for (qsizetype i = 0; !scope.isEmpty() && i < m_groups.size(); ++i) {
    if (LocalizedText::contains(m_groups[i].name, scope)) {
      result.push_back(i);
    }
  }
  return result;
}

void AppState::findMatches(Listing &made) const {
  const QString term = itemSearchTerm();
  const ItemArrangement &arranged = arrangement();
  const std::vector<bool> hits =
      searchIndex().matches(m_items, term.isEmpty() ? m_searchQuery : term);
  Listing::Matches &matches = made.matches.emplace();
  for (qsizetype bucket = 0; bucket < arranged.bucketCount(); ++bucket) {
    std::ranges::copy_if(arranged.bucket(bucket), std::back_inserter(matches.positions),
                         [&hits](qsizetype position) { return hits[asSize(position)]; });
    matches.bucketEnds.push_back(static_cast<qsizetype>(matches.positions.size()));
  }
}

std::optional<std::span<const qsizetype>> AppState::scopedGroupPositions() const {
  const Listing &present = listing();
  return present.scopedGroups.has_value() ? std::optional(std::span(*present.scopedGroups))
                                          : std::nullopt;
}

std::span<const qsizetype> AppState::filteredGroupPositions() const {
  return listing().filteredGroups;
}

std::span<const qsizetype> AppState::itemPositionsForGroup(const QUuid &groupId) const {
  const Listing &present = listing();
  if (present.scopedGroups.has_value() && !present.scopedGroupIds.contains(groupId)) {
    return {};
  }
  if (!present.matches.has_value()) {
    return arrangement().itemsOfGroup(groupId);
  }
  const std::optional<qsizetype> bucket = arrangement().bucketOf(groupId);
  if (!bucket.has_value()) {
    return {};
  }
  const std::vector<qsizetype> &ends = present.matches->bucketEnds;
  const std::size_t begin = *bucket == 0 ? 0 : asSize(ends[asSize(*bucket - 1)]);
  return std::span(present.matches->positions)
      .subspan(begin, asSize(ends[asSize(*bucket)]) - begin);
}

std::span<const qsizetype> AppState::recentItemPositions() const {
  if (!m_recentItems.has_value()) {
    std::vector<qsizetype> recent;  // newest first
    for (qsizetype i = 0; i < m_items.size(); ++i) {
      const std::optional<Date> &date = m_items[i].lastAccessed;
      if (!date.has_value()) {
        continue;
      }
      const auto place = std::find_if(recent.cbegin(), recent.cend(), [&](qsizetype other) {
        return *date > *m_items[other].lastAccessed;
      });
      recent.insert(place, i);
      recent.resize(std::min(recent.size(), recentItemLimit));
    }
    m_recentItems = std::move(recent);
  }
  return *m_recentItems;
}

std::optional<QList<PathGroup>> AppState::scopedGroups() const {
  const std::optional<std::span<const qsizetype>> positions = scopedGroupPositions();
  return positions.has_value() ? std::optional(groupsAt(*positions)) : std::nullopt;
}

QList<PathGroup> AppState::filteredGroups() const {
  return groupsAt(filteredGroupPositions());
}

QList<PathItem> AppState::itemsForGroup(const QUuid &groupId) const {
  return itemsAt(itemPositionsForGroup(groupId));
}

QList<PathItem> AppState::recentItems() const {
  return itemsAt(recentItemPositions());
}

const ItemArrangement &AppState::arrangement() const {
  if (!m_arrangement) {
    m_arrangement = std::make_unique<ItemArrangement>(m_items);
  }
  return *m_arrangement;
}

const SearchIndex &AppState::searchIndex() const {
  if (!m_searchIndex) {
    m_searchIndex = std::make_unique<SearchIndex>(m_items);
  }
  return *m_searchIndex;
}

QList<PathItem> AppState::itemsAt(std::span<const qsizetype> positions) const {
  QList<PathItem> result;
  result.reserve(static_cast<qsizetype>(positions.size()));
  for (const qsizetype position : positions) {
    result.append(m_items[position]);
  }
  return result;
}

QList<PathGroup> AppState::groupsAt(std::span<const qsizetype> positions) const {
  QList<PathGroup> result;
  result.reserve(static_cast<qsizetype>(positions.size()));
  for (const qsizetype position : positions) {
    result.append(m_groups[position]);
  }
  return result;
}

}  // namespace lanternix
