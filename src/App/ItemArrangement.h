#pragma once

#include "Models/PathItem.h"

#include <QtCore/QHash>
#include <QtCore/QUuid>

#include <optional>
#include <span>
#include <vector>

namespace lanternix {

/// A list of items by group, in display order, and by id: what follows from the ids, groups and
/// orders of the items, worked out in one pass. Items are told by their positions in the list,
/// which stays where it is and is never copied.
///
/// An arrangement outlives changes of names, paths and dates, and of orders that keep the display
/// order.
class ItemArrangement {
 public:
  explicit ItemArrangement(const QList<PathItem> &items);

  /// How many groups the items name, existing ones or not. Buckets are numbered from 0.
  qsizetype bucketCount() const { return static_cast<qsizetype>(m_bucketEnds.size()); }
  /// The bucket of the items of a group, or none for a group without items.
  std::optional<qsizetype> bucketOf(const QUuid &groupId) const;
  /// The items of a bucket, sorted by `order`; equal ones stay in storage order.
  std::span<const qsizetype> bucket(qsizetype number) const;
  /// The items of a group in display order.
  std::span<const qsizetype> itemsOfGroup(const QUuid &groupId) const;

  /// The first item with this id.
  std::optional<qsizetype> firstWithId(const QUuid &id) const;
  /// The first item with the id of the item at \p position. Ids should be unique, yet a document
  /// may repeat them.
  qsizetype identityOf(qsizetype position) const {
    return m_identities[static_cast<std::size_t>(position)];
  }

 private:
  struct Position {
    qsizetype value = -1;
  };

  void fillBuckets(const QList<PathItem> &items);
  void identify(const QList<PathItem> &items);

  QHash<QUuid, Position> m_buckets;
  std::vector<qsizetype> m_bucketEnds;  // in m_positions
  std::vector<qsizetype> m_positions;   // bucket after bucket
  QHash<QUuid, Position> m_firstPositions;
  std::vector<qsizetype> m_identities;
};

}  // namespace lanternix
