#include "Platform/Linux/IniText.h"
#include "support/TemporaryHome.h"

#include <QtCore/QHash>
#include <QtCore/QSettings>
#include <QtCore/QTemporaryDir>

#include <gtest/gtest.h>
#include <random>
#include <string_view>

namespace lanternix {
namespace {

using namespace Qt::StringLiterals;
using namespace std::string_view_literals;

/// The value of \p key as the library that reads the file sees it.
QVariant valueIn(const QByteArray &text, QAnyStringView key) {
  const QTemporaryDir directory;
  const QString path = directory.filePath(u"file.conf"_s);
  EXPECT_TRUE(TemporaryHome::write(path, text));
  return QSettings(path, QSettings::NativeFormat).value(key.toString());
}

QByteArray withKey(const QByteArray &text) {
  return withIniValue(text, "key", u"new"_s);
}

TEST(IniText, EmptyFile_GetsTheSection) {
  EXPECT_EQ(withKey(""), "[General]\nkey=new\n");
}

TEST(IniText, FileWithoutTheSection_GetsItOnTop) {
  EXPECT_EQ(withKey("[Other]\nkey=old\n"), "[General]\nkey=new\n\n[Other]\nkey=old\n");
  EXPECT_EQ(withKey("\xef\xbb\xbf; note\n"), "\xef\xbb\xbf[General]\nkey=new\n\n; note\n");
}

TEST(IniText, SectionWithoutTheKey_GetsItBehindTheHeader) {
  EXPECT_EQ(withKey("[General]\na=1\n"), "[General]\nkey=new\na=1\n");
  EXPECT_EQ(withKey("[general] ; note\na=1\n"), "[general] ; note\nkey=new\na=1\n");
  EXPECT_EQ(withKey("[General]"), "[General]\nkey=new\n");
  EXPECT_EQ(withKey("[General]\r\na=1\r\n"), "[General]\nkey=new\r\na=1\r\n");
}

TEST(IniText, KeyWithAValue_GetsTheNewOne) {
  EXPECT_EQ(withKey("[General]\nkey=old\nother=1"), "[General]\nkey=new\nother=1");
  EXPECT_EQ(withKey("[General]\n  key = \"a\nb;\" ; note"), "[General]\n  key =new; note");
  EXPECT_EQ(withKey("key=above any header\n[X]\n"), "key=new\n[X]\n");
  EXPECT_EQ(withKey("[General]\nkey=goes \\\non\nb=1"), "[General]\nkey=new\nb=1");
}

TEST(IniText, KeyGivenTwice_GetsTheNewValueBothTimes) {
  EXPECT_EQ(withKey("[General]\nkey=1\n[X]\nkey=2\n[General]\nkey=3\n"),
            "[General]\nkey=new\n[X]\nkey=2\n[General]\nkey=new\n");
}

TEST(IniText, WhatOnlyLooksLikeTheKey_StaysAsItIs) {
  for (const char *line :
       {";key=old", "keys=old", "a=\"\nkey=old\n\"", "a=\\\nkey=old", "Key=old", "key"}) {
    const QByteArray rest = QByteArray("\n") + line + '\n';
    EXPECT_EQ(withKey("[General]" + rest), "[General]\nkey=new" + rest) << line;
  }
}

TEST(IniText, OpenQuote_DoesNotSwallowTheNewValue) {
  const QByteArray text = withKey("[General]\na=\"never closed\n[X]\n");
  EXPECT_EQ(valueIn(text, u"key"), u"new"_s);
}

TEST(IniText, OpenQuoteBehindTheHeader_DoesNotSwallowTheNewValue) {
  EXPECT_EQ(valueIn(withKey("[General] \"never closed\na=1\n"), u"key"), u"new"_s);
}

TEST(IniText, TextThatEndsInABackslash_IsReadToItsEndOnly) {
  EXPECT_EQ(withKey("[General]\na=\\"), "[General]\nkey=new\na=\\");
  EXPECT_EQ(withKey("[General]\nkey=\\"), "[General]\nkey=new");
}

TEST(IniText, SimpleValues_StandWithoutQuotes) {
  EXPECT_EQ(withIniValue("", "key", u"2026-03-07T09:05:41.000Z"_s),
            "[General]\nkey=2026-03-07T09:05:41.000Z\n");
  EXPECT_EQ(withIniValue("", "key", u""_s), "[General]\nkey=\"\"\n");
}

/// A few of the characters that matter to the format, and of those round the edges of Unicode.
QString randomText(std::mt19937 &generator) {
  constexpr std::u16string_view units =
      u"abf09AF \"\\;,=@()[]%\n\r\t\0\1\x7f\x80ä日\ufeff\xd83d\xde00"sv;
  QString text;
  for (auto length = generator() % 12; length > 0; --length) {
    text += QChar(units[generator() % units.size()]);
  }
  return text;
}

QByteArray randomData(std::mt19937 &generator) {
  QByteArray data;
  for (auto length = generator() % 12; length > 0; --length) {
    data += static_cast<char>(generator() % 256);
  }
  return data;
}

TEST(IniText, RandomStringsAndData_ReadBackTheSame) {
  std::mt19937 generator(5);
  QByteArray text = "[General]\nother=\"x;\"\nkey7=old\n";
  QHash<QString, QVariant> values{{u"other"_s, u"x;"_s}};
  for (int i = 0; i < 1000; ++i) {
    const QString key = u"key"_s + QString::number(i);
    const QVariant value = i % 2 == 0 ? QVariant(randomText(generator)) : randomData(generator);
    text = withIniValue(text, key.toLatin1(), value);
    values.insert(key, value);
  }
  const QTemporaryDir directory;
  const QString path = directory.filePath(u"file.conf"_s);
  ASSERT_TRUE(TemporaryHome::write(path, text));
  const QSettings settings(path, QSettings::NativeFormat);
  EXPECT_EQ(settings.allKeys().size(), values.size());
  for (auto value = values.cbegin(); value != values.cend(); ++value) {
    ASSERT_EQ(settings.value(value.key()), value.value()) << qPrintable(value.key());
  }
}

}  // namespace
}  // namespace lanternix
