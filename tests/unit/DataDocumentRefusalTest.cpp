#include "Services/DataDocument.h"

#include <gtest/gtest.h>

namespace lanternix {
namespace {

using namespace Qt::StringLiterals;

constexpr const char *goodGroup =
    R"({"id":"6B1F0A52-3C4D-4E5F-8A9B-0C1D2E3F4A5B","name":"Work","iconName":"star","colorName":"red","order":2,"isExpanded":true})";
constexpr const char *goodItem =
    R"({"id":"F00DFEED-0000-4000-8000-0123456789AB","name":"N","path":"P","type":"file","groupId":"6B1F0A52-3C4D-4E5F-8A9B-0C1D2E3F4A5B","dateAdded":1,"lastAccessed":2,"order":3})";

QByteArray documentOf(const QByteArray &group, const QByteArray &item) {
  return "{\"groups\":[" + group + "],\"items\":[" + item + "]}";
}

/// A good group with one member replaced, or taken out when \p replacement is empty.
QByteArray groupWith(const QByteArray &member, const QByteArray &replacement) {
  QByteArray group = goodGroup;
  EXPECT_TRUE(group.contains(member)) << member.constData();
  group.replace(member, replacement);
  return group.replace(",,", ",").replace("{,", "{").replace(",}", "}");
}

QByteArray itemWith(const QByteArray &member, const QByteArray &replacement) {
  QByteArray item = goodItem;
  EXPECT_TRUE(item.contains(member)) << member.constData();
  item.replace(member, replacement);
  return item.replace(",,", ",").replace("{,", "{").replace(",}", "}");
}

std::optional<DataDocument> decodedGroup(const QByteArray &group) {
  return DataDocument::decoded(documentOf(group, goodItem));
}

std::optional<DataDocument> decodedItem(const QByteArray &item) {
  return DataDocument::decoded(documentOf(goodGroup, item));
}

QString errorOf(const QByteArray &bytes) {
  QString error;
  EXPECT_EQ(DataDocument::decoded(bytes, &error), std::nullopt);
  return error;
}

TEST(DataDocumentRefusal, GoodRecords_Decode) {
  const auto document = DataDocument::decoded(documentOf(goodGroup, goodItem));
  ASSERT_TRUE(document);
  EXPECT_EQ(document->groups.first().order, 2);
  EXPECT_EQ(document->items.first().lastAccessed, Date{2});
  EXPECT_EQ(document->items.first().order, 3);
}

TEST(DataDocumentRefusal, ItemWithoutOrder_HasOrderZero) {
  for (const char *replacement : {"", R"("order":null)"}) {
    const auto document = decodedItem(itemWith(R"("order":3)", replacement));
    ASSERT_TRUE(document) << replacement;
    EXPECT_EQ(document->items.first().order, 0);
  }
}

TEST(DataDocumentRefusal, ItemWithoutLastAccess_HasNoneAndIsWrittenWithoutIt) {
  for (const char *replacement : {"", R"("lastAccessed":null)"}) {
    const auto document = decodedItem(itemWith(R"("lastAccessed":2)", replacement));
    ASSERT_TRUE(document) << replacement;
    EXPECT_EQ(document->items.first().lastAccessed, std::nullopt);
    EXPECT_FALSE(document->encoded()->contains("lastAccessed"));
  }
}

TEST(DataDocumentRefusal, GroupWithoutAnyOfItsKeys_IsRefused) {
  for (const char *member :
       {R"("id":"6B1F0A52-3C4D-4E5F-8A9B-0C1D2E3F4A5B")", R"("name":"Work")",
        R"("iconName":"star")", R"("colorName":"red")", R"("order":2)", R"("isExpanded":true)"}) {
    EXPECT_EQ(decodedGroup(groupWith(member, "")), std::nullopt) << member;
  }
}

TEST(DataDocumentRefusal, ItemWithoutARequiredKey_IsRefused) {
  for (const char *member :
       {R"("id":"F00DFEED-0000-4000-8000-0123456789AB")", R"("name":"N")", R"("path":"P")",
        R"("type":"file")", R"("groupId":"6B1F0A52-3C4D-4E5F-8A9B-0C1D2E3F4A5B")",
        R"("dateAdded":1)"}) {
    EXPECT_EQ(decodedItem(itemWith(member, "")), std::nullopt) << member;
  }
}

TEST(DataDocumentRefusal, MembersOfAnotherType_AreRefused) {
  for (const char *value : {"null", "7", "1.5", "true", "\"x\"", "[]", "{}"}) {
    const QByteArray other = value;
    const auto isText = other.startsWith('"');
    EXPECT_EQ(decodedGroup(groupWith("\"red\"", other)).has_value(), isText) << value;
    EXPECT_EQ(decodedGroup(groupWith("\"order\":2", "\"order\":" + other)).has_value(),
              other == "7")
        << value;
    EXPECT_EQ(decodedGroup(groupWith(":true", ':' + other)).has_value(), other == "true") << value;
    EXPECT_EQ(decodedItem(itemWith("\"N\"", other)).has_value(), isText) << value;
    EXPECT_EQ(decodedItem(itemWith("\"P\"", other)).has_value(), isText) << value;
    EXPECT_EQ(decodedItem(itemWith("\"file\"", other)), std::nullopt) << value;
    EXPECT_EQ(decodedItem(itemWith("\"F00DFEED-0000-4000-8000-0123456789AB\"", other)),
              std::nullopt)
        << value;
    const bool isNumber = other == "7" || other == "1.5";
    EXPECT_EQ(decodedItem(itemWith("\"dateAdded\":1", "\"dateAdded\":" + other)).has_value(),
              isNumber)
        << value;
    EXPECT_EQ(decodedItem(itemWith("\"lastAccessed\":2", "\"lastAccessed\":" + other)).has_value(),
              isNumber || other == "null")
        << value;
    EXPECT_EQ(decodedItem(itemWith("\"order\":3", "\"order\":" + other)).has_value(),
              other == "7" || other == "null")
        << value;
  }
}

TEST(DataDocumentRefusal, NumberInPlaceOfABoolean_IsRefused) {
  EXPECT_EQ(decodedGroup(groupWith(":true", ":1")), std::nullopt);
  EXPECT_EQ(decodedGroup(groupWith(":true", ":0")), std::nullopt);
}

TEST(DataDocumentRefusal, OrderOfWholeValue_IsTakenHoweverSpelled) {
  for (const char *text : {"4.0", "4e0", "0.4e1", "40E-1"}) {
    const auto document = decodedItem(itemWith("\"order\":3", "\"order\":" + QByteArray(text)));
    ASSERT_TRUE(document) << text;
    EXPECT_EQ(document->items.first().order, 4) << text;
  }
}

TEST(DataDocumentRefusal, OrderWithAFractionOrOutOfRange_IsRefused) {
  for (const char *text : {"1.5", "1e30", "9223372036854775808", "-9223372036854775809", "1e-1"}) {
    EXPECT_EQ(decodedItem(itemWith("\"order\":3", "\"order\":" + QByteArray(text))), std::nullopt)
        << text;
    EXPECT_EQ(decodedGroup(groupWith("\"order\":2", "\"order\":" + QByteArray(text))), std::nullopt)
        << text;
  }
}

TEST(DataDocumentRefusal, DateBeyondTheRangeOfDoubles_IsRefused) {
  EXPECT_EQ(decodedItem(itemWith("\"dateAdded\":1", "\"dateAdded\":1e400")), std::nullopt);
}

TEST(DataDocumentRefusal, UnknownOrMisspelledType_IsRefused) {
  for (const char *type : {"\"url\"", "\"Directory\"", "\"\"", "\"file \"", "\"fil\\u00e9\""}) {
    EXPECT_EQ(decodedItem(itemWith("\"file\"", type)), std::nullopt) << type;
  }
  EXPECT_TRUE(decodedItem(itemWith("\"file\"", "\"fil\\u0065\"")));
}

TEST(DataDocumentRefusal, UuidNotOfThirtySixCharacters_IsRefused) {
  for (const char *uuid :
       {"\"F00DFEED-0000-4000-8000-0123456789A\"", "\"\"",
        "\"{F00DFEED-0000-4000-8000-0123456789AB}\"", "\"F00DFEED0000400080000123456789AB\""}) {
    EXPECT_EQ(decodedItem(itemWith("\"F00DFEED-0000-4000-8000-0123456789AB\"", uuid)), std::nullopt)
        << uuid;
  }
}

TEST(DataDocumentRefusal, LowerCaseUuid_IsTaken) {
  EXPECT_TRUE(decodedItem(itemWith("F00DFEED", "f00dfeed")));
}

TEST(DataDocumentRefusal, UnknownKeys_AreIgnoredAtEveryDepth) {
  const QByteArray extra = R"("extra":{"a":[1,{"b":null}],"id":5},"Name":7,)";
  const QByteArray group = QByteArray(goodGroup).insert(1, extra);
  const QByteArray item = QByteArray(goodItem).insert(1, extra);
  EXPECT_EQ(DataDocument::decoded(documentOf(group, item).insert(1, extra)),
            DataDocument::decoded(documentOf(goodGroup, goodItem)));
}

TEST(DataDocumentRefusal, BrokenValueOfAnUnknownKey_IsRefused) {
  for (const char *extra :
       {"\"x\":[1,],", "\"x\":\"\\q\",", "\"x\":01,", "\"x\":\"\xff\",", "\"x\":,"}) {
    EXPECT_EQ(decodedItem(QByteArray(goodItem).insert(1, extra)), std::nullopt) << extra;
  }
}

TEST(DataDocumentRefusal, KeyGivenTwice_HasItsLastValue) {
  QByteArray item = goodItem;
  item.chop(1);
  const auto document = decodedItem(item + R"(,"name":"last","lastAccessed":null,"order":null})");
  ASSERT_TRUE(document);
  EXPECT_EQ(document->items.first().name, u"last"_s);
  EXPECT_EQ(document->items.first().lastAccessed, std::nullopt);
  EXPECT_EQ(document->items.first().order, 0);
}

TEST(DataDocumentRefusal, ListGivenTwice_HoldsOnlyTheLastRecords) {
  const auto document = DataDocument::decoded("{\"items\":[" + QByteArray(goodItem) +
                                              "],\"groups\":[],\"items\":[]}");
  ASSERT_TRUE(document);
  EXPECT_TRUE(document->items.isEmpty());
}

TEST(DataDocumentRefusal, DocumentWithoutEitherList_IsRefused) {
  for (const char *text :
       {"{}", R"({"groups":[]})", R"({"items":[]})", R"({"groups":[],"items":null})",
        R"({"groups":{},"items":[]})", R"({"Groups":[],"items":[]})"}) {
    EXPECT_EQ(DataDocument::decoded(text), std::nullopt) << text;
  }
}

TEST(DataDocumentRefusal, WhatIsNoObject_IsRefused) {
  for (const char *text : {"", " ", "[]", "null", "7", "\"groups\"",
                           "{\"groups\":[],\"items\":[[]]}", "{\"groups\":[null],\"items\":[]}"}) {
    EXPECT_EQ(DataDocument::decoded(text), std::nullopt) << text;
  }
}

TEST(DataDocumentRefusal, TrailingRubbish_IsRefused) {
  const QByteArray document = documentOf(goodGroup, goodItem);
  for (const char *rubbish : {"x", "{}", ",", "]", "}", "\xef\xbb\xbf", "//"}) {
    EXPECT_EQ(DataDocument::decoded(document + rubbish), std::nullopt) << rubbish;
  }
  EXPECT_EQ(DataDocument::decoded(document + QByteArray(1, '\0')), std::nullopt);
}

TEST(DataDocumentRefusal, InvalidUtf8InAName_IsRefused) {
  EXPECT_EQ(decodedItem(itemWith("\"N\"", "\"\xc3(\"")), std::nullopt);
  EXPECT_EQ(decodedItem(itemWith("\"N\"", "\"\xed\xa0\x80\"")), std::nullopt);
}

TEST(DataDocumentRefusal, OneBadItemAmongMany_RefusesTheWhole) {
  const QByteArray items = (QByteArray(goodItem) + ',').repeated(1000) + itemWith(":1", ":\"1\"");
  EXPECT_EQ(DataDocument::decoded(documentOf(goodGroup, items)), std::nullopt);
}

TEST(DataDocumentRefusal, AHundredThousandNestedBrackets_AreRefused) {
  const QByteArray open = QByteArray("[").repeated(100'000);
  const QByteArray closed = open + QByteArray("]").repeated(100'000);
  for (const QByteArray &brackets : {open, closed}) {
    EXPECT_EQ(DataDocument::decoded(brackets), std::nullopt);
    EXPECT_EQ(DataDocument::decoded("{\"groups\":" + brackets + ",\"items\":[]}"), std::nullopt);
    EXPECT_EQ(DataDocument::decoded("{\"x\":" + brackets + ",\"groups\":[],\"items\":[]}"),
              std::nullopt);
  }
}

TEST(DataDocumentRefusal, EveryPrefixOfADocument_IsRefused) {
  const QByteArray document = documentOf(goodGroup, goodItem);
  for (qsizetype length = 0; length < document.size(); ++length) {
    const QByteArray prefix(document.constData(), length);
    EXPECT_EQ(DataDocument::decoded(prefix), std::nullopt) << length;
  }
}

TEST(DataDocumentRefusal, Error_SaysWhatIsWrongAndWhere) {
  EXPECT_EQ(errorOf(R"({"groups":[],"items":7})"), u"a list is expected at byte 21"_s);
  EXPECT_EQ(errorOf(R"({"groups":[{}],"items":[]})"),
            u"an object lacks the key \"colorName\" and ends at byte 12"_s);
  const QByteArray document = documentOf("", itemWith("\"file\"", "\"url\""));
  EXPECT_EQ(errorOf(document), u"a known type of item is expected at byte "_s +
                                   QString::number(document.indexOf("\"url\"")));
}

}  // namespace
}  // namespace lanternix
