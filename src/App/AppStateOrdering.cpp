// Order of groups and items: its repair at start-up, the next free one, and moves.
#include "App/AppState.h"
#include "App/ItemArrangement.h"

#include <algorithm>
#include <limits>
#include <numeric>
#include <utility>

namespace lanternix {

namespace {

constexpr qint64 largestOrder = std::numeric_limits<qint64>::max();

// Takes the elements at \p offsets out of \p list and puts them, together, before the one that is
// at \p destination now. Offsets that the list does not have are passed over, a destination outside
// it means its nearer end.
void move(std::vector<qsizetype> &list, const QSet<qsizetype> &offsets, qsizetype destination) {
  std::vector<qsizetype> moved;
  std::vector<qsizetype> result;
  result.reserve(list.size());
  const auto size = static_cast<qsizetype>(list.size());
  const qsizetype target = std::clamp<qsizetype>(destination, 0, size);
  qsizetype insertion = 0;
  for (qsizetype i = 0; i < size; ++i) {
    const qsizetype element = list[static_cast<std::size_t>(i)];
    if (offsets.contains(i)) {
      moved.push_back(element);
    } else {
      result.push_back(element);
      insertion += i < target ? 1 : 0;
    }
  }
  result.insert(result.begin() + insertion, moved.begin(), moved.end());
  list = std::move(result);
}

}  // namespace

void AppState::normalizeItemOrders() {
  const ItemArrangement &arranged = arrangement();
  for (qsizetype bucket = 0; bucket < arranged.bucketCount(); ++bucket) {
    qint64 order = 0;
    for (const qsizetype position : arranged.bucket(bucket)) {
      // Compared first, for writing makes a copy of a list that is still shared.
      if (std::as_const(m_items)[position].order != order) {
        m_items[position].order = order;
      }
      ++order;
    }
  }
}

std::vector<qsizetype> AppState::groupsInDisplayOrder() const {
  std::vector<qsizetype> positions(static_cast<std::size_t>(m_groups.size()));
  std::iota(positions.begin(), positions.end(), qsizetype{0});
  std::stable_sort(positions.begin(), positions.end(), [this](qsizetype a, qsizetype b) {
    return m_groups[a].order < m_groups[b].order;
  });
  return positions;
}

qint64 AppState::nextGroupOrder() {
  if (m_groups.isEmpty()) {
    return 0;
  }
  const auto last =
      std::max_element(m_groups.cbegin(), m_groups.cend(),
                       [](const PathGroup &a, const PathGroup &b) { return a.order < b.order; });
  if (last->order < largestOrder) {
    return last->order + 1;
  }
  // There is no larger number: make room by renumbering, which changes no group's place.
  qint64 order = 0;
  for (const qsizetype position : groupsInDisplayOrder()) {
    m_groups[position].order = order++;
  }
  return order;
}

qint64 AppState::nextItemOrder(const QUuid &groupId) {
  std::optional<qint64> last;
  for (const PathItem &item : std::as_const(m_items)) {
    if (item.groupId == groupId && (!last.has_value() || item.order > *last)) {
      last = item.order;
    }
  }
  if (!last.has_value()) {
    return 0;
  }
  if (*last < largestOrder) {
    return *last + 1;
  }
  // As with groups: there is no larger number.
  qint64 order = 0;
  for (const qsizetype position : arrangement().itemsOfGroup(groupId)) {
    m_items[position].order = order++;
  }
  return order;
}

void AppState::moveGroup(const QSet<qsizetype> &offsets, qsizetype destination) {
  std::vector<qsizetype> positions = groupsInDisplayOrder();
  move(positions, offsets, destination);
  QList<PathGroup> groups = groupsAt(positions);
  qint64 order = 0;
  for (PathGroup &group : groups) {
    group.order = order++;
  }
  if (groups != m_groups) {
    m_groups = std::move(groups);
    groupsDidChange();
  }
  save();
  announceChanges();
}

void AppState::moveItems(const QSet<qsizetype> &offsets, qsizetype destination,
                         const QUuid &groupId) {
  const ItemArrangement &arranged = arrangement();
  const std::span<const qsizetype> shown = arranged.itemsOfGroup(groupId);
  std::vector<qsizetype> positions(shown.begin(), shown.end());
  move(positions, offsets, destination);
  bool changed = false;
  qint64 order = 0;
  for (const qsizetype position : positions) {
    const qsizetype first = arranged.identityOf(position);
    if (std::as_const(m_items)[first].order != order) {
      m_items[first].order = order;
      changed = true;
    }
    ++order;
  }
  if (changed) {
    itemsDidChange(ItemChange::arranged);
  }
  save();
  announceChanges();
}

void AppState::moveItem(const QUuid &itemId, const QUuid &groupId) {
  const std::optional<qsizetype> position = arrangement().firstWithId(itemId);
  if (!position.has_value() || groupWithId(groupId) == nullptr ||
      std::as_const(m_items)[*position].groupId == groupId) {
    return;
  }
  m_items[*position].groupId = groupId;
  itemsDidChange(ItemChange::arranged);
  save();
  announceChanges();
}

}  // namespace lanternix
