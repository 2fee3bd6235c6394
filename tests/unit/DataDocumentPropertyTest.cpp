#include "Services/DataDocument.h"

#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>

#include <bit>
#include <cmath>
#include <gtest/gtest.h>
#include <random>

namespace lanternix {
namespace {

using namespace Qt::StringLiterals;

/// Makes documents of anything that a document can hold.
class Generator {
 public:
  explicit Generator(quint64 seed) : m_bits(seed) {}

  quint64 below(quint64 limit) { return m_bits() % limit; }

  /// Any Unicode scalar value, the troublesome ones more often than chance would have them.
  char32_t scalar() {
    switch (below(6)) {
      case 0:
        return static_cast<char32_t>(below(0x20));
      case 1:
        return U"\"\\/\u007f\u0080\u2028\u2029\ufeff\ufffd\uffff"[below(10)];
      case 2:
        return static_cast<char32_t>(0x10000 + below(0x100000));
      case 3: {
        const auto unit = static_cast<char32_t>(below(0xf800));
        return unit < 0xd800 ? unit : unit + 0x800;
      }
      default:
        return static_cast<char32_t>(0x20 + below(0x60));
    }
  }

  QString text() {
    std::u32string scalars(below(20), U' ');
    for (char32_t &character : scalars) {
      character = scalar();
    }
    return QString::fromStdU32String(scalars);
  }

  QUuid uuid() {
    const std::array<quint64, 2> bits{m_bits(), m_bits()};
    return QUuid::fromRfc4122(
        QByteArrayView(reinterpret_cast<const char *>(bits.data()), sizeof bits));
  }

  /// Any finite pattern of bits, or a moment of our days.
  Date date() {
    if (below(2) == 0) {
      return {static_cast<double>(below(1'000'000'000'000)) / 1000.0};
    }
    const auto seconds = std::bit_cast<double>(m_bits());
    return std::isfinite(seconds) ? Date{seconds} : Date{-0.0};
  }

  qint64 order() { return static_cast<qint64>(below(2) == 0 ? m_bits() : below(100)); }

  DataDocument document() {
    DataDocument document;
    for (quint64 count = below(4); count > 0; --count) {
      document.groups.append({uuid(), text(), text(), text(), order(), below(2) == 0});
    }
    for (quint64 count = below(6); count > 0; --count) {
      document.items.append({uuid(), text(), text(), allItemTypes[below(allItemTypes.size())],
                             uuid(), date(), below(2) == 0 ? std::optional(date()) : std::nullopt,
                             order()});
    }
    return document;
  }

  /// \p bytes with a few bytes changed, taken out, put in or doubled.
  QByteArray mutated(QByteArray bytes) {
    static constexpr QByteArrayView interesting = "{}[]\",:\\/u0123456789-+.eEntf \n\x80\xc3\xff";
    for (quint64 count = 1 + below(3); count > 0 && !bytes.isEmpty(); --count) {
      const auto position = static_cast<qsizetype>(below(static_cast<quint64>(bytes.size())));
      const char byte =
          interesting[static_cast<qsizetype>(below(static_cast<quint64>(interesting.size())))];
      switch (below(4)) {
        case 0:
          bytes[position] = byte;
          break;
        case 1:
          bytes.remove(position, static_cast<qsizetype>(1 + below(4)));
          break;
        case 2:
          bytes.insert(position, byte);
          break;
        default:
          bytes.insert(position,
                       bytes.sliced(position).first(std::min<qsizetype>(
                           bytes.size() - position, 1 + static_cast<qsizetype>(below(30)))));
      }
    }
    return bytes;
  }

 private:
  std::mt19937_64 m_bits;
};

bool haveSameBits(const Date &first, const Date &second) {
  return std::bit_cast<quint64>(first.secondsSinceReferenceDate) ==
         std::bit_cast<quint64>(second.secondsSinceReferenceDate);
}

TEST(DataDocumentProperties, RandomDocuments_ReadBackEqualInValueAndBytes) {
  Generator generator(20260307);
  for (int round = 0; round < 5000; ++round) {
    const DataDocument document = generator.document();
    const std::optional<QByteArray> bytes = document.encoded();
    ASSERT_TRUE(bytes);
    QString error;
    const std::optional<DataDocument> again = DataDocument::decoded(*bytes, &error);
    ASSERT_TRUE(again) << qPrintable(error) << bytes->constData();
    ASSERT_EQ(*again, document) << bytes->constData();
    ASSERT_EQ(again->encoded(), bytes);
    for (qsizetype i = 0; i < document.items.size(); ++i) {
      ASSERT_TRUE(haveSameBits(again->items[i].dateAdded, document.items[i].dateAdded));
    }
  }
}

TEST(DataDocumentProperties, RandomDocuments_AreUtf8AndJsonToAnotherReader) {
  Generator generator(7);
  for (int round = 0; round < 2000; ++round) {
    const QByteArray bytes = *generator.document().encoded();
    QJsonParseError error;
    QJsonDocument::fromJson(bytes, &error);
    ASSERT_EQ(error.error, QJsonParseError::NoError)
        << qPrintable(error.errorString()) << bytes.constData();
    ASSERT_TRUE(bytes.isValidUtf8());
  }
}

/// The other reader drops a U+FEFF at the beginning of some texts.
QString withoutMark(const QString &text) {
  return text.startsWith(QChar(u'\ufeff')) ? text.sliced(1) : text;
}

void expectSameText(const QString &text, const QJsonValue &value) {
  EXPECT_TRUE(value.isString());
  EXPECT_EQ(withoutMark(text), withoutMark(value.toString()));
}

void expectSameGroup(const PathGroup &group, const QJsonObject &object) {
  EXPECT_EQ(group.id, QUuid(object["id"_L1].toString()));
  expectSameText(group.name, object["name"_L1]);
  expectSameText(group.iconName, object["iconName"_L1]);
  expectSameText(group.colorName, object["colorName"_L1]);
  EXPECT_EQ(group.isExpanded, object["isExpanded"_L1].toBool());
}

void expectSameItem(const PathItem &item, const QJsonObject &object) {
  EXPECT_EQ(item.id, QUuid(object["id"_L1].toString()));
  expectSameText(item.name, object["name"_L1]);
  expectSameText(item.path, object["path"_L1]);
  expectSameText(rawValue(item.type), object["type"_L1]);
  EXPECT_EQ(item.groupId, QUuid(object["groupId"_L1].toString()));
  EXPECT_EQ(item.dateAdded.secondsSinceReferenceDate, object["dateAdded"_L1].toDouble());
  EXPECT_EQ(item.lastAccessed.has_value(), object["lastAccessed"_L1].isDouble());
  EXPECT_EQ(item.lastAccessed.value_or(Date()).secondsSinceReferenceDate,
            object["lastAccessed"_L1].toDouble());
  EXPECT_EQ(static_cast<double>(item.order), object["order"_L1].toDouble());
}

void expectSame(const DataDocument &document, const QJsonObject &object) {
  const QJsonArray groups = object["groups"_L1].toArray();
  const QJsonArray items = object["items"_L1].toArray();
  ASSERT_EQ(document.groups.size(), groups.size());
  ASSERT_EQ(document.items.size(), items.size());
  for (qsizetype i = 0; i < groups.size(); ++i) {
    expectSameGroup(document.groups[i], groups[i].toObject());
  }
  for (qsizetype i = 0; i < items.size(); ++i) {
    expectSameItem(document.items[i], items[i].toObject());
  }
}

// Only what our reader takes is compared: it is the stricter one.
TEST(DataDocumentProperties, MutatedDocumentsThatDecode_HaveTheValuesThatAnotherReaderSees) {
  Generator generator(99);
  int acceptedCount = 0;
  for (int round = 0; round < 40'000; ++round) {
    const QByteArray bytes = generator.mutated(*generator.document().encoded());
    const std::optional<DataDocument> document = DataDocument::decoded(bytes);
    if (!document) {
      continue;
    }
    ++acceptedCount;
    QJsonParseError error;
    const QJsonObject object = QJsonDocument::fromJson(bytes, &error).object();
    ASSERT_EQ(error.error, QJsonParseError::NoError)
        << qPrintable(error.errorString()) << bytes.constData();
    expectSame(*document, object);
    ASSERT_FALSE(HasFailure()) << bytes.constData();
  }
  EXPECT_GT(acceptedCount, 1000) << "too few of the mutated documents were worth comparing";
}

}  // namespace
}  // namespace lanternix
