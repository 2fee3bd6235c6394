#include "Models/Date.h"
#include "Utilities/DateText.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace lanternix {

namespace {

QString shown(const QLocale &locale) {
  return DateText::mediumDateShortTime(
      Date::fromDateTime(QDateTime(QDate(2026, 11, 21), QTime(15, 40))), locale);
}

}  // namespace

TEST(DateTextTest, AmericanEnglish_HasAShortMonthAndAnAt) {
  // Newer language data put a narrow space that does not break before the PM.
  EXPECT_EQ(shown(QLocale(QLocale::English, QLocale::UnitedStates)).replace(QChar(0x202F), u' '),
            u"Nov 21, 2026 at 3:40 PM"_s);
}

TEST(DateTextTest, BritishEnglish_HasTheDayFirst) {
  EXPECT_EQ(shown(QLocale(QLocale::English, QLocale::UnitedKingdom)), u"21 Nov 2026 at 15:40"_s);
}

TEST(DateTextTest, German_HasItsOwnMonthAndNoWeekday) {
  EXPECT_EQ(shown(QLocale(QLocale::German, QLocale::Germany)), u"21. Nov. 2026, 15:40"_s);
}

TEST(DateTextTest, Spanish_KeepsTheWordsBetween) {
  EXPECT_EQ(shown(QLocale(QLocale::Spanish, QLocale::Spain)), u"21 de nov de 2026, 15:40"_s);
}

TEST(DateTextTest, Japanese_KeepsItsSigns) {
  EXPECT_TRUE(shown(QLocale(QLocale::Japanese, QLocale::Japan)).startsWith(u"2026年11月21日"_s));
}

TEST(DateTextTest, WithoutALanguage_TheTimeHasNoSecondsEither) {
  EXPECT_EQ(shown(QLocale::c()), u"21 Nov 2026 at 15:40"_s);
}

TEST(DateTextTest, EveryLanguage_HasDayMonthAndYearAndNoWeekday) {
  for (const QLocale &locale :
       QLocale::matchingLocales(QLocale::AnyLanguage, QLocale::AnyScript, QLocale::AnyTerritory)) {
    const QString format = DateText::mediumDateFormat(locale);
    EXPECT_FALSE(format.contains(u"ddd"_s)) << locale.name().toStdString();
    for (const QChar part : {u'd', u'M', u'y'}) {
      EXPECT_TRUE(format.contains(part)) << locale.name().toStdString();
    }
    EXPECT_FALSE(format.startsWith(u',') || format.endsWith(u',')) << locale.name().toStdString();
  }
}

}  // namespace lanternix
