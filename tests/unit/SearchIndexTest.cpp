#include "App/SearchIndex.h"
#include "Models/PathItem.h"
#include "Utilities/LocalizedText.h"

#include <QtCore/QRandomGenerator>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using testing::ElementsAre;

namespace lanternix {

namespace {

PathItem item(const QString &name, const QString &path) {
  return {QUuid::createUuid(), name, path, ItemType::command, QUuid(), Date(), {}, 0};
}

std::vector<bool> search(const QList<PathItem> &items, const QString &needle) {
  return SearchIndex(items).matches(items, needle);
}

}  // namespace

TEST(SearchIndex, Matches_NameOrPath_EitherWillDo) {
  const QList<PathItem> items{item(u"Report"_s, u"/a"_s), item(u"b"_s, u"/report.pdf"_s),
                              item(u"c"_s, u"/c"_s), item(u"report"_s, u"REPORT"_s)};
  EXPECT_THAT(search(items, u"report"_s), ElementsAre(true, true, false, true));
}

TEST(SearchIndex, Matches_NeedleAcrossNameAndPath_IsNotFound) {
  const QList<PathItem> items{item(u"ab"_s, u"cd"_s), item(u"ef"_s, u"gh"_s)};
  EXPECT_THAT(search(items, u"bc"_s), ElementsAre(false, false));
  EXPECT_THAT(search(items, u"de"_s), ElementsAre(false, false));
}

TEST(SearchIndex, Matches_EmptyNeedle_MatchesNothing) {
  EXPECT_THAT(search({item(u"a"_s, u""_s)}, u""_s), ElementsAre(false));
}

TEST(SearchIndex, Matches_NoItems_GivesNothing) {
  EXPECT_THAT(search({}, u"a"_s), ElementsAre());
}

TEST(SearchIndex, Matches_EmptyTexts_AreNotFound) {
  const QList<PathItem> items{item(u""_s, u""_s), item(u""_s, u"x"_s), item(u"x"_s, u""_s)};
  EXPECT_THAT(search(items, u"x"_s), ElementsAre(false, true, true));
}

TEST(SearchIndex, Matches_TextAtTheVeryEnd_IsFound) {
  const QList<PathItem> items{item(u"a"_s, u"b"_s), item(u"c"_s, u"the end"_s)};
  EXPECT_THAT(search(items, u"END"_s), ElementsAre(false, true));
}

TEST(SearchIndex, Matches_HalfACharacterInTheName_LooksAtThePathToo) {
  const QList<PathItem> items{item(u"Maß"_s, u"/mass"_s), item(u"Maß"_s, u"/x"_s),
                              item(u"Maß"_s, u"/Maß"_s), item(u"s"_s, u"/y"_s)};
  EXPECT_THAT(search(items, u"s"_s), ElementsAre(true, false, false, true));
}

TEST(SearchIndex, Matches_NulInAText_HidesNothingBehindIt) {
  const QList<PathItem> items{item(u"a"_s + QChar(u'\0') + u"b"_s, u""_s), item(u"b"_s, u""_s)};
  EXPECT_THAT(search(items, u"b"_s), ElementsAre(true, true));
  EXPECT_THAT(search(items, QString(QChar(u'\0'))), ElementsAre(true, false));
}

TEST(SearchIndex, Matches_RandomTexts_AgreesWithContains) {
  const QStringList alphabet{u"a"_s, u"A"_s, u"b"_s,      u"é"_s,  u"e"_s,  u"\u0301"_s, u"ß"_s,
                             u"s"_s, u"👩"_s, u"\u200d"_s, u"\r"_s, u"\n"_s, u""_s};
  QRandomGenerator random(42);
  const auto text = [&](int longest) {
    QString result;
    for (int length = random.bounded(longest + 1); length > 0; --length) {
      result += alphabet[random.bounded(static_cast<int>(alphabet.size()))];
    }
    return result;
  };
  for (int round = 0; round < 300; ++round) {
    QList<PathItem> items;
    for (int i = random.bounded(20); i > 0; --i) {
      items.append(item(text(8), text(12)));
    }
    const SearchIndex index(items);
    for (int search = 0; search < 10; ++search) {
      const QString needle = text(3);
      std::vector<bool> expected;
      for (const PathItem &each : items) {
        expected.push_back(LocalizedText::contains(each.name, needle) ||
                           LocalizedText::contains(each.path, needle));
      }
      ASSERT_EQ(index.matches(items, needle), expected) << needle.toStdString();
    }
  }
}

}  // namespace lanternix
