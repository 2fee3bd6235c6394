#include "App/ItemArrangement.h"

#include <algorithm>

namespace lanternix {

ItemArrangement::ItemArrangement(const QList<PathItem> &items) {
  fillBuckets(items);
  identify(items);
}

void ItemArrangement::fillBuckets(const QList<PathItem> &items) {
  std::vector<std::size_t> bucketOfItem;
  bucketOfItem.reserve(static_cast<std::size_t>(items.size()));
  std::vector<qsizetype> nextFree;  // sizes first, then the place of each bucket's next item
  for (const PathItem &item : items) {
    Position &number = m_buckets[item.groupId];
    if (number.value < 0) {
      number.value = static_cast<qsizetype>(nextFree.size());
      nextFree.push_back(0);
    }
    bucketOfItem.push_back(static_cast<std::size_t>(number.value));
    ++nextFree[bucketOfItem.back()];
  }

  qsizetype end = 0;
  for (qsizetype &place : nextFree) {
    const qsizetype size = place;
    place = end;
    end += size;
    m_bucketEnds.push_back(end);
  }

  m_positions.resize(bucketOfItem.size());
  for (std::size_t i = 0; i < bucketOfItem.size(); ++i) {
    const auto place = static_cast<std::size_t>(nextFree[bucketOfItem[i]]++);
    m_positions[place] = static_cast<qsizetype>(i);
  }

  const auto byOrder = [&items](qsizetype a, qsizetype b) {
    return items[a].order < items[b].order;
  };
  auto begin = m_positions.begin();
  for (const qsizetype bucketEnd : m_bucketEnds) {
    const auto bucketStop = m_positions.begin() + bucketEnd;
    if (!std::is_sorted(begin, bucketStop, byOrder)) {
      std::stable_sort(begin, bucketStop, byOrder);
    }
    begin = bucketStop;
  }
}

void ItemArrangement::identify(const QList<PathItem> &items) {
  m_firstPositions.reserve(items.size());
  m_identities.reserve(static_cast<std::size_t>(items.size()));
  for (qsizetype i = 0; i < items.size(); ++i) {
    Position &first = m_firstPositions[items[i].id];
    if (first.value < 0) {
      first.value = i;
    }
    m_identities.push_back(first.value);
  }
}

std::optional<qsizetype> ItemArrangement::bucketOf(const QUuid &groupId) const {
  const auto found = m_buckets.constFind(groupId);
  return found == m_buckets.cend() ? std::nullopt : std::optional(found->value);
}

std::span<const qsizetype> ItemArrangement::bucket(qsizetype number) const {
  const auto index = static_cast<std::size_t>(number);
  const auto begin = static_cast<std::size_t>(index == 0 ? 0 : m_bucketEnds[index - 1]);
  return std::span(m_positions)
      .subspan(begin, static_cast<std::size_t>(m_bucketEnds[index]) - begin);
}

std::span<const qsizetype> ItemArrangement::itemsOfGroup(const QUuid &groupId) const {
  const std::optional<qsizetype> number = bucketOf(groupId);
  return number.has_value() ? bucket(*number) : std::span<const qsizetype>();
}

std::optional<qsizetype> ItemArrangement::firstWithId(const QUuid &id) const {
  const auto found = m_firstPositions.constFind(id);
  return found == m_firstPositions.cend() ? std::nullopt : std::optional(found->value);
}

}  // namespace lanternix
