#include "Services/DataDocument.h"

#include <QtCore/QFile>

#include <bit>
#include <gtest/gtest.h>
#include <limits>

namespace lanternix {
namespace {

using namespace Qt::StringLiterals;

QByteArray golden(const QString &name) {
  QFile file(QStringLiteral(GOLDEN_DIRECTORY "/") + name + u".json"_s);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no such golden file");
}

PathGroup sampleGroup() {
  return {QUuid(u"6b1f0a52-3c4d-4e5f-8a9b-0c1d2e3f4a5b"_s),
          u"Work"_s,
          u"folder.fill"_s,
          u"teal"_s,
          2,
          false};
}

PathItem sampleItem() {
  return {QUuid(u"f00dfeed-0000-4000-8000-0123456789ab"_s),
          u"Documents"_s,
          u"/Users/me/Documents"_s,
          ItemType::directory,
          sampleGroup().id,
          Date{700'000'000},
          {},
          0};
}

PathItem itemNamed(const QString &name) {
  PathItem item = sampleItem();
  item.name = name;
  return item;
}

/// \p document has the bytes of the golden file, and these have \p document.
void expectGolden(const QString &name, const DataDocument &document) {
  const QByteArray bytes = golden(name);
  EXPECT_EQ(document.encoded(), bytes) << document.encoded().value_or(QByteArray()).constData();
  EXPECT_EQ(DataDocument::decoded(bytes), document);
}

TEST(DataDocumentFormat, EmptyLists_HaveAnEmptyLineInside) {
  expectGolden(u"empty"_s, {});
}

TEST(DataDocumentFormat, Group_HasSortedKeys) {
  expectGolden(u"group"_s, {{sampleGroup()}, {}});
}

TEST(DataDocumentFormat, ItemNeverOpened_HasNoLastAccess) {
  expectGolden(u"item-never-opened"_s, {{}, {sampleItem()}});
}

TEST(DataDocumentFormat, ItemOpened_HasLastAccessBetweenIdAndName) {
  PathItem item = sampleItem();
  item.lastAccessed = Date{762'345'678.123456};
  expectGolden(u"item-opened"_s, {{}, {item}});
}

TEST(DataDocumentFormat, SeveralRecords_KeepTheirOrder) {
  PathGroup second = sampleGroup();
  second.id = QUuid();
  second.order = 0;
  second.isExpanded = true;
  expectGolden(u"several"_s, {{sampleGroup(), second}, {itemNamed(u"b"_s), itemNamed(u"a"_s)}});
}

TEST(DataDocumentFormat, ItemTypes_AreTheirRawValues) {
  DataDocument document;
  for (const ItemType type : allItemTypes) {
    document.items.append(sampleItem());
    document.items.last().type = type;
  }
  expectGolden(u"item-types"_s, document);
}

TEST(DataDocumentFormat, QuoteBackslashSlashAndControls_AreEscaped) {
  QString text = u"\"\\/"_s;
  for (char16_t unit = 0; unit < 0x20; ++unit) {
    text.append(QChar(unit));
  }
  expectGolden(u"escapes"_s, {{}, {itemNamed(text + u"\u007f\u0080\u2028\u2029"_s)}});
}

TEST(DataDocumentFormat, TextOutsideAscii_IsPlainUtf8) {
  expectGolden(u"unicode"_s, {{}, {itemNamed(u"Übersicht 日記 e\u0301 \U0001F600 \uffff"_s)}});
}

TEST(DataDocumentFormat, Dates_AreTheShortestDecimals) {
  DataDocument document;
  for (const double seconds :
       {0.0, -0.0, -978'307'200.0, 700'000'000.5, 0.1, 1e-4, 9.5e-5, 1e16, 1e20, 5e-324,
        std::numeric_limits<double>::max(), 18'014'398'509'481'982.0, 18'014'398'509'481'984.0}) {
    document.items.append(sampleItem());
    document.items.last().dateAdded = Date{seconds};
  }
  expectGolden(u"dates"_s, document);
}

TEST(DataDocumentFormat, Orders_CoverSixtyFourBits) {
  DataDocument document;
  for (const qint64 order :
       {std::numeric_limits<qint64>::min(), qint64{-1}, std::numeric_limits<qint64>::max()}) {
    document.groups.append(sampleGroup());
    document.groups.last().order = order;
    document.items.append(sampleItem());
    document.items.last().order = order;
  }
  expectGolden(u"orders"_s, document);
}

TEST(DataDocumentEncoding, HalfASurrogatePair_BecomesTheReplacementCharacter) {
  const QString lone = u"a"_s + QChar(u'\xd83d') + u"b"_s + QChar(u'\xde00');
  const auto bytes = DataDocument{{}, {itemNamed(lone)}}.encoded();
  ASSERT_TRUE(bytes);
  EXPECT_EQ(DataDocument::decoded(*bytes)->items.first().name, u"a\ufffdb\ufffd"_s);
}

TEST(DataDocumentEncoding, DateThatIsNoNumber_FailsTheWhole) {
  for (const double seconds :
       {std::numeric_limits<double>::quiet_NaN(), std::numeric_limits<double>::infinity()}) {
    PathItem added = sampleItem();
    added.dateAdded = Date{seconds};
    EXPECT_EQ((DataDocument{{}, {sampleItem(), added}}.encoded()), std::nullopt);
    PathItem accessed = sampleItem();
    accessed.lastAccessed = Date{-seconds};
    EXPECT_EQ((DataDocument{{}, {accessed}}.encoded()), std::nullopt);
  }
}

TEST(DataDocumentEncoding, TextLongerThanExpected_IsWrittenWhole) {
  const DataDocument document{
      {}, {itemNamed(QString(100'000, u'\1')), itemNamed(QString(50'000, u'日'))}};
  EXPECT_EQ(DataDocument::decoded(*document.encoded()), document);
}

TEST(DataDocumentEncoding, SameLists_GiveTheSameBytes) {
  const DataDocument document{{sampleGroup()}, {sampleItem()}};
  EXPECT_EQ(document.encoded(), DataDocument(document).encoded());
}

TEST(DataDocumentDecoding, MinusZero_KeepsItsSign) {
  PathItem item = sampleItem();
  item.dateAdded = Date{-0.0};
  const auto bytes = DataDocument{{}, {item}}.encoded();
  const double seconds =
      DataDocument::decoded(*bytes)->items.first().dateAdded.secondsSinceReferenceDate;
  EXPECT_EQ(std::bit_cast<quint64>(seconds), std::bit_cast<quint64>(-0.0));
}

TEST(DataDocumentDecoding, PlainSlashesAndOtherWhiteSpace_ReadTheSame) {
  const DataDocument document{{sampleGroup()}, {sampleItem()}};
  QByteArray bytes = *document.encoded();
  bytes.replace("\\/", "/").replace("\n", "\r\n\t").replace(" : ", ":");
  EXPECT_EQ(DataDocument::decoded(bytes + " \n"), document);
}

TEST(DataDocumentDecoding, KeysInAnotherOrder_ReadTheSame) {
  EXPECT_EQ(DataDocument::decoded(R"({"items":[],"groups":[]})"), DataDocument());
}

TEST(DataDocumentDecoding, ByteOrderMark_IsTolerated) {
  EXPECT_EQ(DataDocument::decoded("\xef\xbb\xbf{\"items\":[],\"groups\":[]}"), DataDocument());
}

}  // namespace
}  // namespace lanternix
