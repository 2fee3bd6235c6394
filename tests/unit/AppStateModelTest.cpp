// The store against a plain transcription of the rules, on random data, queries and operations.
#include "Models/Blanks.h"
#include "Utilities/LocalizedText.h"
#include "support/StoreFixture.h"

#include <QtCore/QRandomGenerator>

#include <algorithm>
#include <gtest/gtest.h>
#include <iterator>
#include <limits>

using namespace Qt::StringLiterals;

namespace lanternix {

namespace {

using Groups = QList<PathGroup>;
using Items = QList<PathItem>;

// The rules, each worked out from scratch at every read.
struct Rules {
  const Groups &groups;
  const Items &items;
  const QString &query;

  QString scope() const {
    const qsizetype colon = query.indexOf(u':');
    if (colon < 0) {
      return {};
    }
    QStringList pieces{query.first(colon), query.sliced(colon + 1)};
    pieces.removeAll(QString());
    return pieces.isEmpty() ? QString() : trimmedBlanks(pieces.front()).toString();
  }

  QString term() const {
    const qsizetype colon = query.indexOf(u':');
    return colon < 0 ? query : trimmedBlanks(query.sliced(colon + 1)).toString();
  }

  std::optional<Groups> scopedGroups() const {
    Groups result;
    for (const PathGroup &group : groups) {
      if (!scope().isEmpty() && LocalizedText::contains(group.name, scope())) {
        result.append(group);
      }
    }
    return result.isEmpty() ? std::nullopt : std::optional(result);
  }

  Items itemsForGroup(const QUuid &groupId) const {
    Items inGroup;
    for (const PathItem &item : items) {
      if (item.groupId == groupId) {
        inGroup.append(item);
      }
    }
    std::stable_sort(inGroup.begin(), inGroup.end(),
                     [](const PathItem &a, const PathItem &b) { return a.order < b.order; });
    const std::optional<Groups> scoped = scopedGroups();
    if (scoped && std::none_of(scoped->begin(), scoped->end(),
                               [&](const PathGroup &group) { return group.id == groupId; })) {
      return {};
    }
    if (query.isEmpty() || (scoped && term().isEmpty())) {
      return inGroup;
    }
    const QString needle = term().isEmpty() ? query : term();
    inGroup.removeIf([&](const PathItem &item) {
      return !LocalizedText::contains(item.name, needle) &&
             !LocalizedText::contains(item.path, needle);
    });
    return inGroup;
  }

  Groups filteredGroups() const {
    const std::optional<Groups> scoped = scopedGroups();
    Groups base = scoped.value_or(groups);
    if (!scoped) {
      std::stable_sort(base.begin(), base.end(),
                       [](const PathGroup &a, const PathGroup &b) { return a.order < b.order; });
    }
    if (query.isEmpty() || (scoped && term().isEmpty())) {
      return base;
    }
    base.removeIf([&](const PathGroup &group) { return itemsForGroup(group.id).isEmpty(); });
    return base;
  }

  Items recentItems() const {
    Items result;
    std::copy_if(items.begin(), items.end(), std::back_inserter(result),
                 [](const PathItem &item) { return item.lastAccessed.has_value(); });
    std::stable_sort(result.begin(), result.end(), [](const PathItem &a, const PathItem &b) {
      return *a.lastAccessed > *b.lastAccessed;
    });
    return result.first(std::min<qsizetype>(result.size(), 5));
  }

  Items navigationItems() const {
    Items all = query.isEmpty() ? recentItems() : Items();
    for (const PathGroup &group : filteredGroups()) {
      if (!query.isEmpty() || group.isExpanded) {
        all += itemsForGroup(group.id);
      }
    }
    Items once;
    for (const PathItem &item : all) {
      if (std::none_of(once.begin(), once.end(),
                       [&](const PathItem &other) { return other.id == item.id; })) {
        once.append(item);
      }
    }
    return once;
  }
};

class AppStateModel : public testing::Test, public StoreFixture {
 protected:
  AppStateModel() {
    std::generate_n(std::back_inserter(m_groupIds), 5, &QUuid::createUuid);
    std::generate_n(std::back_inserter(m_itemIds), 9, &QUuid::createUuid);
  }

  template <typename List>
  const auto &any(const List &list) {
    return list[m_random.bounded(static_cast<int>(list.size()))];
  }

  QString text(int longest) {
    QString result;
    for (int length = m_random.bounded(longest + 1); length > 0; --length) {
      result += any(m_alphabet);
    }
    return result;
  }

  qint64 order() { return any(m_orders); }

  PathGroup randomGroup() {
    return {any(m_groupIds), text(4), QString(), QString(), order(), m_random.bounded(2) == 0};
  }

  PathItem randomItem() {
    PathItem result{any(m_itemIds),  text(5), text(5), ItemType::command,
                    any(m_groupIds), Date(),  {},      order()};
    if (m_random.bounded(3) == 0) {
      result.lastAccessed = Date{static_cast<double>(m_random.bounded(6))};
    }
    return result;
  }

  DataDocument randomData() {
    DataDocument data;
    for (int i = m_random.bounded(6); i > 0; --i) {
      data.groups.append(randomGroup());
    }
    for (int i = m_random.bounded(14); i > 0; --i) {
      data.items.append(randomItem());
    }
    return data;
  }

  void operate(AppState &state) {
    const QSet<qsizetype> offsets{m_random.bounded(-1, 5), m_random.bounded(0, 3)};
    const auto destination = static_cast<qsizetype>(m_random.bounded(-1, 7));
    clock.advance(m_random.bounded(2));
    switch (m_random.bounded(14)) {
      case 0:
        return state.addGroup(randomGroup());
      case 1:
        return state.updateGroup(randomGroup());
      case 2:
        return state.deleteGroup(any(m_groupIds));
      case 3:
        return state.moveGroup(offsets, destination);
      case 4:
        return state.toggleGroup(any(m_groupIds));
      case 5:
        return state.addItem(randomItem());
      case 6:
        return state.updateItem(randomItem());
      case 7:
        return state.deleteItem(any(m_itemIds));
      case 8:
        return state.duplicateItem(randomItem());
      case 9:
        return state.moveItems(offsets, destination, any(m_groupIds));
      case 10:
        return state.moveItem(any(m_itemIds), any(m_groupIds));
      case 11:
        return state.openItem(randomItem());
      case 12:
        return state.importData(*randomData().encoded());
      default:
        return state.setSearchQuery(text(4));
    }
  }

  void expectReadsFollowTheRules(const AppState &state) {
    const Rules rules{state.groups(), state.items(), state.searchQuery()};
    ASSERT_EQ(state.groupScopeFilter(), rules.scope());
    ASSERT_EQ(state.itemSearchTerm(), rules.term());
    ASSERT_EQ(state.scopedGroups(), rules.scopedGroups());
    ASSERT_EQ(state.filteredGroups(), rules.filteredGroups());
    ASSERT_EQ(state.recentItems(), rules.recentItems());
    ASSERT_EQ(state.navigationItems(), rules.navigationItems());
    for (const QUuid &id : std::as_const(m_groupIds)) {
      ASSERT_EQ(state.itemsForGroup(id), rules.itemsForGroup(id));
    }
  }

  QRandomGenerator m_random{20260307};

 private:
  // Few of each, so that ids repeat, groups are missing and texts meet.
  QList<QUuid> m_groupIds;
  QList<QUuid> m_itemIds;
  const QStringList m_alphabet{u"a"_s, u"A"_s, u"b"_s,      u":"_s, u" "_s, u"\t"_s,
                               u"é"_s, u"e"_s, u"\u0301"_s, u"ß"_s, u"s"_s, u"👍🏽"_s};
  const QList<qint64> m_orders{
      0, 0, 1, 1, 2, 7, -3, std::numeric_limits<qint64>::max(), std::numeric_limits<qint64>::min()};
};

}  // namespace

TEST_F(AppStateModel, RandomDataAndQueries_ReadsFollowTheRules) {
  const auto state = makeState();
  for (int round = 0; round < 100; ++round) {
    state->importData(*randomData().encoded());
    for (int query = 0; query < 20; ++query) {
      ASSERT_NO_FATAL_FAILURE(expectReadsFollowTheRules(*state)) << "round " << round;
      state->setSearchQuery(text(4));
    }
  }
}

TEST_F(AppStateModel, RandomOperations_ReadsFollowTheRulesAfterEach) {
  const auto state = makeState();
  for (int step = 0; step < 800; ++step) {
    operate(*state);
    ASSERT_NO_FATAL_FAILURE(expectReadsFollowTheRules(*state)) << "step " << step;
  }
}

TEST_F(AppStateModel, RandomQueries_SelectTheFirstMatch) {
  const auto state = makeState();
  for (int round = 0; round < 500; ++round) {
    if (round % 10 == 0) {
      state->importData(*randomData().encoded());
    }
    state->setSearchQuery(text(3));
    const Items walk =
        Rules{state->groups(), state->items(), state->searchQuery()}.navigationItems();
    const bool selects = !state->searchQuery().isEmpty() && !walk.isEmpty();
    ASSERT_EQ(state->selectedItemId(), selects ? std::optional(walk.front().id) : std::nullopt);
  }
}

}  // namespace lanternix
