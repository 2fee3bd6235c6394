#include "Services/JsonReader.h"

#include <QtCore/QList>
#include <QtCore/QUuid>

#include <gtest/gtest.h>

namespace lanternix {
namespace {

using namespace Qt::StringLiterals;

/// The string that \p text is, or what is wrong with it.
QString stringIn(QByteArrayView text) {
  JsonReader reader(text);
  QString value;
  return reader.readString(value) && reader.readEnd() ? value : reader.error();
}

/// What is wrong with \p text as a JSON text of any kind; empty when nothing is.
QString errorIn(QByteArrayView text) {
  JsonReader reader(text);
  return reader.skipValue() && reader.readEnd() ? QString() : reader.error();
}

std::optional<QUuid> uuidIn(QByteArrayView text) {
  JsonReader reader(text);
  QUuid value;
  return reader.readUuid(value) ? std::optional(value) : std::nullopt;
}

TEST(JsonReaderStrings, EveryEscape_IsResolved) {
  EXPECT_EQ(stringIn(R"("\"\\\/\b\f\n\r\t\u0041\u00e4\u20AC\uD83D\uDE00")"),
            u"\"\\/\b\f\n\r\tA\u00e4\u20ac\U0001F600"_s);
}

TEST(JsonReaderStrings, EscapedNul_IsACharacterLikeAnyOther) {
  EXPECT_EQ(stringIn(R"("a\u0000b")"), u"a\0b"_s);
}

TEST(JsonReaderStrings, RawUtf8_IsRead) {
  EXPECT_EQ(stringIn("\"\xc3\xa4\xe2\x82\xac\xf0\x9f\x98\x80\x7f\""),
            u"\u00e4\u20ac\U0001F600\u007f"_s);
}

TEST(JsonReaderStrings, AsciiNextToOtherText_KeepsItsLength) {
  for (qsizetype length = 0; length < 40; ++length) {
    const QByteArray ascii(length, 'x');
    EXPECT_EQ(stringIn('"' + ascii + '"'), QString::fromLatin1(ascii));
    EXPECT_EQ(stringIn('"' + ascii + "\xc3\xa4\\n" + ascii + '"'),
              QString::fromLatin1(ascii) + u"\u00e4\n"_s + QString::fromLatin1(ascii));
  }
}

TEST(JsonReaderStrings, HalfASurrogatePair_IsRefused) {
  for (const char *text : {R"("\ud83d")", R"("\ude00")", R"("\ud83dx")", R"("\ud83d\n")",
                           R"("\ud83d\u0041")", R"("\ud83d\ud83d")"}) {
    EXPECT_TRUE(stringIn(text).contains(u"half a character")) << text;
  }
}

TEST(JsonReaderStrings, BrokenEscapes_AreRefused) {
  EXPECT_EQ(stringIn(R"("\x41")"), u"an escape is unknown at byte 2"_s);
  EXPECT_EQ(stringIn(R"("\U0041")"), u"an escape is unknown at byte 2"_s);
  EXPECT_TRUE(stringIn(R"("\u00g0")").contains(u"hexadecimal"));
  EXPECT_TRUE(stringIn(R"("\u004)").contains(u"hexadecimal"));
  EXPECT_TRUE(stringIn("\"\\").contains(u"no end"));
}

TEST(JsonReaderStrings, BareControlCharacters_AreRefused) {
  for (char character = 0; character < 0x20; ++character) {
    const QByteArray text = "\"12345678" + QByteArray(1, character) + '"';
    EXPECT_EQ(stringIn(text), u"a string holds a bare control character at byte 9"_s);
  }
}

TEST(JsonReaderStrings, WhatIsNotUtf8_IsRefused) {
  for (const char *bytes : {"\x80", "\xc3", "\xc3(", "\xc0\xaf", "\xe0\x80\xaf", "\xed\xa0\x80",
                            "\xf4\x90\x80\x80", "\xf8\x88\x80\x80\x80", "\xff", "\xc3\\u00a4"}) {
    EXPECT_EQ(stringIn('"' + QByteArray(bytes) + '"'), u"a string is not UTF-8 at byte 1"_s);
  }
}

TEST(JsonReaderStrings, MissingQuotes_AreRefused) {
  EXPECT_EQ(stringIn("\"abc"), u"a string has no end at byte 4"_s);
  EXPECT_EQ(stringIn("  abc"), u"a string is expected at byte 2"_s);
  EXPECT_EQ(stringIn("'abc'"), u"a string is expected at byte 0"_s);
  EXPECT_EQ(stringIn(""), u"a string is expected at byte 0"_s);
}

TEST(JsonReaderValues, Booleans_AreTheTwoWords) {
  for (const char *text : {"1", "0", "\"true\"", "null", "True", "tru", ""}) {
    JsonReader reader(text);
    bool value = false;
    EXPECT_FALSE(reader.readBoolean(value)) << text;
  }
  JsonReader reader(" [true,false]");
  bool first = false;
  bool second = true;
  EXPECT_TRUE(reader.beginArray() && reader.nextElement() && reader.readBoolean(first) &&
              reader.nextElement() && reader.readBoolean(second) && !reader.nextElement() &&
              reader.readEnd());
  EXPECT_TRUE(first);
  EXPECT_FALSE(second);
}

TEST(JsonReaderValues, Uuid_OfEitherCase_IsRead) {
  const QUuid expected(u"12345678-9abc-def0-1234-56789abcdef0"_s);
  EXPECT_EQ(uuidIn(R"("12345678-9ABC-DEF0-1234-56789ABCDEF0")"), expected);
  EXPECT_EQ(uuidIn(R"("12345678-9abc-def0-1234-56789abcdef0")"), expected);
  EXPECT_EQ(uuidIn(R"("\u00312345678-9abc-def0-1234-56789abcdef0")"), expected);
}

TEST(JsonReaderValues, Uuid_OfZeros_IsRead) {
  EXPECT_EQ(uuidIn(R"("00000000-0000-0000-0000-000000000000")"), QUuid());
}

TEST(JsonReaderValues, Uuid_OfAnotherForm_IsRefused) {
  for (const char *text :
       {R"("")", R"("{12345678-9abc-def0-1234-56789abcdef0}")",
        R"("123456789abcdef0123456789abcdef0")", R"("12345678-9abc-def0-1234-56789abcdef")",
        R"("12345678-9abc-def0-1234-56789abcdef00")", R"("12345678-9abc-def0-1234-56789abcdefg")",
        R"("12345678-9abc-def0-12345-6789abcdef0")", R"("{12345678-9abc-def0-1234-56789abcdef")",
        R"("00000000-0000-0000-0000-00000000000g")",
        R"("12345678-9abc-def0-1234-56789abcd\u00e40")",
        R"("+2345678-9abc-def0-1234-56789abcdef0")", R"("0x345678-9abc-def0-1234-56789abcdef0")",
        R"(" 2345678-9abc-def0-1234-56789abcdef0")"}) {
    EXPECT_EQ(uuidIn(text), std::nullopt) << text;
  }
}

TEST(JsonReaderStructure, Members_ComeInTheOrderOfTheText) {
  JsonReader reader(R"( { "a" : 1 , "b":2,"\u0063" : 3 } )");
  QList<QByteArray> keys;
  QByteArrayView key;
  qint64 value = 0;
  qint64 sum = 0;
  ASSERT_TRUE(reader.beginObject());
  while (reader.nextMember(key)) {
    keys.append(key.toByteArray());
    ASSERT_TRUE(reader.readInteger(value));
    sum += value;
  }
  EXPECT_TRUE(reader.readEnd());
  EXPECT_EQ(keys, QList<QByteArray>({"a", "b", "c"}));
  EXPECT_EQ(sum, 6);
}

TEST(JsonReaderStructure, WellFormedTexts_AreSkippedWhole) {
  for (const char *text :
       {"{}", "[]", " [ ] ", "0", "-1.5e-7", "\"\"", "null", "true", "false", "[[],{},[{}]]",
        R"({"a":{"b":[1,{"c":null},"]"]},"d":[]})", "[1 , 2\n,\t3\r]", "[1e999]"}) {
    EXPECT_EQ(errorIn(text), QString()) << text;
  }
}

TEST(JsonReaderStructure, MalformedTexts_AreRefused) {
  for (const char *text : {"",
                           " ",
                           "{",
                           "[",
                           "}",
                           "]",
                           "[}",
                           "{]",
                           "[1",
                           "[1,",
                           "[1,]",
                           "[,1]",
                           "[1 2]",
                           "[1,,2]",
                           "{\"a\"}",
                           "{\"a\":}",
                           "{\"a\":1,}",
                           "{,\"a\":1}",
                           "{\"a\" 1}",
                           "{\"a\":1 \"b\":2}",
                           "{a:1}",
                           "{1:1}",
                           "nul",
                           "nulll",
                           "truefalse",
                           "01",
                           "1.",
                           "+1",
                           ".5",
                           "-",
                           "1e",
                           "0x10",
                           "NaN",
                           "Infinity",
                           "// comment\n1",
                           "/* */1",
                           "[1]]",
                           "{}{}",
                           "1 2",
                           "\f1",
                           "\xc2\xa0"
                           "1",
                           "\xef\xbb\xbf",
                           "\xef\xbb\xbf\xef\xbb\xbf"
                           "1",
                           "\xfe\xff"}) {
    EXPECT_NE(errorIn(text), QString()) << text;
  }
}

TEST(JsonReaderStructure, ByteOrderMark_IsPassedOver) {
  EXPECT_EQ(errorIn("\xef\xbb\xbf[1]"), QString());
  EXPECT_EQ(errorIn("\xef\xbb\xbf[x]"), u"a value is expected at byte 4"_s);
}

TEST(JsonReaderStructure, NulByteAfterTheText_IsRefused) {
  EXPECT_EQ(errorIn(QByteArrayView("1\0", 2)),
            u"something follows the end of the document at byte 1"_s);
}

TEST(JsonReaderStructure, Nesting_IsTakenUpToTheLimit) {
  const auto limit = static_cast<qsizetype>(JsonReader::nestingLimit);
  EXPECT_EQ(errorIn(QByteArray(limit, '[') + QByteArray(limit, ']')), QString());
  EXPECT_TRUE(
      errorIn(QByteArray(limit + 1, '[') + QByteArray(limit + 1, ']')).contains(u"too deep"));
}

TEST(JsonReaderStructure, AHundredThousandBrackets_AreRefusedWithoutACrash) {
  for (const char *bracket : {"[", "{\"a\":", "[{\"a\":"}) {
    EXPECT_TRUE(errorIn(QByteArray(bracket).repeated(100'000)).contains(u"too deep"));
  }
}

TEST(JsonReaderStructure, EveryPrefixOfAText_IsRefused) {
  const QByteArray text = R"({"a":[1.5,"x\u00e4\n",true,null,{}],"b":{"c":[[]]}})";
  ASSERT_EQ(errorIn(text), QString());
  for (qsizetype length = 0; length < text.size(); ++length) {
    // A copy of its own, so that a sanitizer sees any look beyond the end.
    const QByteArray prefix(text.constData(), length);
    EXPECT_NE(errorIn(prefix), QString()) << prefix.constData();
  }
}

TEST(JsonReaderErrors, TheFirstFailure_IsFinal) {
  JsonReader reader("[1,true]");
  bool value = false;
  EXPECT_TRUE(reader.beginArray() && reader.nextElement());
  EXPECT_FALSE(reader.readBoolean(value));
  EXPECT_FALSE(reader.skipValue());
  EXPECT_FALSE(reader.nextElement());
  EXPECT_FALSE(reader.beginObject());
  EXPECT_FALSE(reader.skipNull());
  EXPECT_FALSE(reader.readEnd());
  EXPECT_EQ(reader.error(), u"true or false is expected at byte 1"_s);
}

TEST(JsonReaderErrors, Error_WithoutAFailure_IsEmpty) {
  const JsonReader reader("[]");
  EXPECT_TRUE(reader.error().isEmpty());
}

}  // namespace
}  // namespace lanternix
