#include "Platform/Linux/IniText.h"
#include "support/TemporaryHome.h"

#include <QtCore/QSettings>
#include <QtCore/QTemporaryDir>

#include <gtest/gtest.h>
#include <random>

namespace lanternix {
namespace {

using namespace Qt::StringLiterals;

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

TEST(IniText, TextThatEndsInABackslash_IsReadToItsEndOnly) {
  EXPECT_EQ(withKey("[General]\na=\\"), "[General]\nkey=new\na=\\");
  EXPECT_EQ(withKey("[General]\nkey=\\"), "[General]\nkey=new");
}

TEST(IniText, SimpleValues_StandWithoutQuotes) {
  EXPECT_EQ(withIniValue("", "key", u"2026-03-07T09:05:41.000Z"_s),
            "[General]\nkey=2026-03-07T09:05:41.000Z\n");
  EXPECT_EQ(withIniValue("", "key", u""_s), "[General]\nkey=\"\"\n");
}

TEST(IniText, RandomStringsAndData_ReadBackTheSame) {
  constexpr char16_t units[] = u"abf09AF \"\\;,=@()[]%\n\r\t\0\1\x7f\x80ä日\ufeff\xd83d\xde00";
  std::mt19937 generator(5);
  const QByteArray start = "[General]\nother=\"x;\"\nkey=old\n";
  for (int round = 0; round < 2000; ++round) {
    QString text;
    QByteArray data;
    for (auto length = generator() % 12; length > 0; --length) {
      text += QChar(units[generator() % (std::size(units) - 1)]);
      data += static_cast<char>(generator() % 256);
    }
    ASSERT_EQ(valueIn(withIniValue(start, "key", text), u"key").toString(), text);
    const QByteArray withData = withIniValue(start, "key", data);
    ASSERT_EQ(valueIn(withData, u"key").toByteArray(), data) << withData.constData();
    ASSERT_EQ(valueIn(withData, u"other"), u"x;"_s);
  }
}

}  // namespace
}  // namespace lanternix
