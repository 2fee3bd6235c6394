#include "Platform/Linux/SettingsUserDefaults.h"
#include "support/TemporaryHome.h"

#include <QtCore/QDir>

#include <gtest/gtest.h>
#include <limits>

namespace lanternix {
namespace {

using namespace Qt::StringLiterals;

template <typename Value>
using State = typename StoredValue<Value>::State;

class SettingsUserDefaultsTest : public testing::Test {
 protected:
  /// A store over a file with this text.
  SettingsUserDefaults storeOf(const QByteArray &text) {
    EXPECT_TRUE(home.write(home.preferencesFile(), text));
    return SettingsUserDefaults(home.preferencesFile());
  }

  QByteArray fileText() const { return home.read(home.preferencesFile()).value_or("no file"); }

  TemporaryHome home;
};

TEST_F(SettingsUserDefaultsTest, Values_AreOnTheDiskAfterEachWrite) {
  SettingsUserDefaults store(home.preferencesFile());
  store.setBoolean(false, "showURLs");
  EXPECT_EQ(fileText(), "[General]\nshowURLs=false\n");
  store.setInteger(-3, "count");
  EXPECT_TRUE(fileText().contains("\ncount=-3\n"));
}

TEST_F(SettingsUserDefaultsTest, Values_OfEveryType_ReadBackInTheNextProgram) {
  const QByteArray bytes = QByteArray("{\"keyCode\":49}\0\xff\n,;", 19);
  {
    SettingsUserDefaults store(home.preferencesFile());
    store.setBoolean(true, "boolean");
    store.setInteger(std::numeric_limits<qint64>::min(), "integer");
    store.setReal(0.1 + 0.2, "real");
    store.setString(u" a, b;\"\\ä@日\n"_s, "string");
    store.setString(u"@ByteArray(x)"_s, "at");
    store.setData(bytes, "data");
    store.setDate(Date{762'345'678.125}, "date");
  }
  const SettingsUserDefaults store(home.preferencesFile());
  EXPECT_EQ(store.boolean("boolean").value, true);
  EXPECT_EQ(store.integer("integer").value, std::numeric_limits<qint64>::min());
  EXPECT_EQ(store.real("real").value, 0.1 + 0.2);
  EXPECT_EQ(store.string("string").value, u" a, b;\"\\ä@日\n"_s);
  EXPECT_EQ(store.string("at").value, u"@ByteArray(x)"_s);
  EXPECT_EQ(store.data("data").value, bytes);
  EXPECT_EQ(store.date("date").value, Date{762'345'678.125});
}

TEST_F(SettingsUserDefaultsTest, Values_JustWritten_AreReadByTheSameStore) {
  SettingsUserDefaults store(home.preferencesFile());
  store.setReal(700, "panelWidth");
  EXPECT_EQ(store.real("panelWidth").value, 700);
  store.setReal(512.5, "panelWidth");
  EXPECT_EQ(store.real("panelWidth").value, 512.5);
}

TEST_F(SettingsUserDefaultsTest, AbsentValues_AreAbsentForEveryType) {
  const SettingsUserDefaults store(home.preferencesFile());
  EXPECT_EQ(store.boolean("x").state, State<bool>::absent);
  EXPECT_EQ(store.integer("x").state, State<qint64>::absent);
  EXPECT_EQ(store.real("x").state, State<double>::absent);
  EXPECT_EQ(store.string("x").state, State<QString>::absent);
  EXPECT_EQ(store.data("x").state, State<QByteArray>::absent);
  EXPECT_EQ(store.date("x").state, State<Date>::absent);
}

TEST_F(SettingsUserDefaultsTest, Reading_WritesNoFile) {
  const SettingsUserDefaults store(home.preferencesFile());
  store.boolean("x");
  EXPECT_FALSE(QFile::exists(home.configHome()));
}

TEST_F(SettingsUserDefaultsTest, Booleans_AreNothingButTheTwoWords) {
  const auto store =
      storeOf("[General]\na=1\nb=True\nc=\nd=yes\ne=true, false\nf=@ByteArray(true)\ng=true\n");
  for (const char *key : {"a", "b", "c", "d", "e", "f"}) {
    EXPECT_EQ(store.boolean(key).state, State<bool>::wrongType) << key;
  }
  EXPECT_EQ(store.boolean("g").value, true);
}

TEST_F(SettingsUserDefaultsTest, Integers_AreDecimalTextWithinSixtyFourBits) {
  const auto store =
      storeOf("[General]\na=1.5\nb=0x10\nc=9223372036854775808\nd=true\ne=1, 2\nf=\ng=15\n");
  for (const char *key : {"a", "b", "c", "d", "e", "f"}) {
    EXPECT_EQ(store.integer(key).state, State<qint64>::wrongType) << key;
  }
  EXPECT_EQ(store.integer("g").value, 15);
}

TEST_F(SettingsUserDefaultsTest, Reals_AreFiniteNumbers) {
  const auto store = storeOf("[General]\na=inf\nb=nan\nc=1e999\nd=wide\ne=\nf=700\ng=-1.5e2\n");
  for (const char *key : {"a", "b", "c", "d", "e"}) {
    EXPECT_EQ(store.real(key).state, State<double>::wrongType) << key;
  }
  EXPECT_EQ(store.real("f").value, 700);
  EXPECT_EQ(store.real("g").value, -150);
}

TEST_F(SettingsUserDefaultsTest, Strings_AreAnyTextButNoListAndNoData) {
  const auto store = storeOf("[General]\na=a, b\nb=@ByteArray(x)\nc=\nd=15\n");
  EXPECT_EQ(store.string("a").state, State<QString>::wrongType);
  EXPECT_EQ(store.string("b").state, State<QString>::wrongType);
  EXPECT_EQ(store.string("c").state, State<QString>::present);
  EXPECT_EQ(store.string("d").value, u"15"_s);
}

TEST_F(SettingsUserDefaultsTest, Data_IsNoText) {
  const auto store = storeOf("[General]\na={}\nb=@ByteArray({\\\"keyCode\\\":49})\n");
  EXPECT_EQ(store.data("a").state, State<QByteArray>::wrongType);
  EXPECT_EQ(store.data("b").value, "{\"keyCode\":49}");
}

TEST_F(SettingsUserDefaultsTest, Dates_NeedAnOffset) {
  const auto store = storeOf(
      "[General]\na=2026-03-07T09:05:41\nb=2026-03-07\nc=yesterday\nd=700000000\n"
      "e=2001-01-01T00:00:00.250Z\nf=2001-01-01T01:00:00+01:00\n");
  for (const char *key : {"a", "b", "c", "d"}) {
    EXPECT_EQ(store.date(key).state, State<Date>::wrongType) << key;
  }
  EXPECT_EQ(store.date("e").value, Date{0.25});
  EXPECT_EQ(store.date("f").value, Date{0});
}

TEST_F(SettingsUserDefaultsTest, Date_IsWrittenAsIsoTextInUtc) {
  SettingsUserDefaults store(home.preferencesFile());
  store.setDate(Date{0.25}, "lastBackupDate");
  EXPECT_EQ(fileText(), "[General]\nlastBackupDate=2001-01-01T00:00:00.250Z\n");
}

TEST_F(SettingsUserDefaultsTest, Date_BeyondEveryCalendar_IsNotWritten) {
  SettingsUserDefaults store(home.preferencesFile());
  store.setDate(Date{1e300}, "lastBackupDate");
  store.setDate(Date{1e12}, "lastBackupDate");
  EXPECT_EQ(store.date("lastBackupDate").state, State<Date>::absent);
}

TEST_F(SettingsUserDefaultsTest, Write_ChangesTheOneValueAndNothingElse) {
  auto store = storeOf(
      "; mine\r\n[Other]\nkey = \"x;y\"\n\n[General]\nlist=a, b\nshowURLs = true ; or not\n");
  store.setBoolean(false, "showURLs");
  EXPECT_EQ(fileText(),
            "; mine\r\n[Other]\nkey = \"x;y\"\n\n[General]\nlist=a, b\nshowURLs =false; or not\n");
}

TEST_F(SettingsUserDefaultsTest, EditByAnotherProgram_SurvivesAWrite) {
  auto store = storeOf("[General]\na=1\n");
  ASSERT_TRUE(home.write(home.preferencesFile(), "[General]\na=2\nmine=x\n"));
  store.setBoolean(true, "b");
  EXPECT_EQ(fileText(), "[General]\nb=true\na=2\nmine=x\n");
}

TEST_F(SettingsUserDefaultsTest, BrokenFile_GivesWhatCanBeReadAndLosesNothingByAWrite) {
  auto store = storeOf("[General]\nshowURLs=false\nno value\nname=\374ber\n[Broken\nx=1\n");
  EXPECT_EQ(store.boolean("showURLs").value, false);
  store.setInteger(3, "count");
  EXPECT_EQ(fileText(),
            "[General]\ncount=3\nshowURLs=false\nno value\nname=\374ber\n[Broken\nx=1\n");
  const SettingsUserDefaults next(home.preferencesFile());
  EXPECT_EQ(next.boolean("showURLs").value, false);
  EXPECT_EQ(next.integer("count").value, 3);
}

TEST_F(SettingsUserDefaultsTest, FileOfAnotherKind_IsNotWrittenOver) {
  ASSERT_TRUE(QDir().mkpath(home.preferencesFile() + u"/inside"_s));
  SettingsUserDefaults store(home.preferencesFile());
  store.setInteger(3, "count");
  EXPECT_TRUE(QFile::exists(home.preferencesFile() + u"/inside"_s));
}

TEST_F(SettingsUserDefaultsTest, Write_LeavesNoOtherFile) {
  SettingsUserDefaults store(home.preferencesFile());
  store.setInteger(3, "count");
  EXPECT_EQ(QDir(home.configHome() + u"/Lanternix"_s)
                .entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
            QStringList({u"Lanternix.conf"_s}));
}

TEST_F(SettingsUserDefaultsTest, FileThatCannotBeWritten_KeepsTheValueForThisProgram) {
  ASSERT_TRUE(home.write(home.configHome(), "a file where the directory should be"));
  SettingsUserDefaults store(home.preferencesFile());
  store.setInteger(3, "count");
  EXPECT_EQ(store.integer("count").value, 3);
  EXPECT_EQ(home.read(home.configHome()), "a file where the directory should be");
}

TEST_F(SettingsUserDefaultsTest, LinkedFile_StaysALink) {
  const QString target = home.root() + u"/dotfiles/lanternix.conf"_s;
  ASSERT_TRUE(home.write(target, "[General]\na=1\n"));
  ASSERT_TRUE(QDir().mkpath(home.configHome() + u"/Lanternix"_s));
  ASSERT_TRUE(QFile::link(target, home.preferencesFile()));
  SettingsUserDefaults store(home.preferencesFile());
  store.setInteger(3, "count");
  EXPECT_TRUE(QFileInfo(home.preferencesFile()).isSymLink());
  EXPECT_EQ(home.read(target), "[General]\ncount=3\na=1\n");
}

}  // namespace
}  // namespace lanternix
