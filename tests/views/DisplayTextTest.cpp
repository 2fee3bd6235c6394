#include "Views/Style/DisplayText.h"
#include "Views/Style/TextStyle.h"

#include <QtGui/QFontMetricsF>

#include <gtest/gtest.h>

namespace lanternix {

namespace {

QString elided(const QString &text, Qt::TextElideMode mode, double width) {
  return DisplayText::elided(text, textFont(TextStyle::body), mode, width);
}

double widthOf(const QString &text) {
  return QFontMetricsF(textFont(TextStyle::body)).horizontalAdvance(text);
}

}  // namespace

TEST(DisplayText, AnOrdinaryText_StaysAsItIs) {
  const QString text = QStringLiteral("Přehled ماه 日本語 👩‍👩‍👧");
  EXPECT_EQ(DisplayText::singleLine(text), text);
}

TEST(DisplayText, CharactersThatMoveThePen_BecomeBlanks) {
  EXPECT_EQ(DisplayText::singleLine(QStringLiteral("a\nb\tc\rd\u2028e\u2029f\u0085g\x01h")),
            QStringLiteral("a b c d e f g h"));
}

TEST(DisplayText, TurnsOfTheWritingDirection_BecomeBlanks) {
  EXPECT_EQ(DisplayText::singleLine(QStringLiteral("cod\u202efdp.exe\u2066x")),
            QStringLiteral("cod fdp.exe x"));
}

TEST(DisplayText, ALongPath_LosesItsMiddle) {
  const QString path = QStringLiteral("/home/ann/a/long/way/down/to/the/file.txt");
  const QString shown = elided(path, Qt::ElideMiddle, widthOf(path) / 2);
  EXPECT_LE(widthOf(shown), widthOf(path) / 2);
  EXPECT_TRUE(shown.startsWith(u"/h"));
  EXPECT_TRUE(shown.endsWith(u"txt"));
  EXPECT_TRUE(shown.contains(u'\u2026'));
}

TEST(DisplayText, AVeryLongText_KeepsItsTwoEnds) {
  const QString path =
      QStringLiteral("/start/") + QString(100'000, u'x') + QStringLiteral("/end.txt");
  const QString shown = elided(path, Qt::ElideMiddle, 300);
  EXPECT_LE(widthOf(shown), 300);
  EXPECT_TRUE(shown.startsWith(u"/start/"));
  EXPECT_TRUE(shown.endsWith(u"/end.txt"));
}

TEST(DisplayText, AVeryLongTextOfCharactersOfTwoUnits_IsNotCutWithinOne) {
  const QString odd = u'x' + QStringLiteral("😀").repeated(1000) + u'y';
  // Wide enough for all that is measured.
  for (const Qt::TextElideMode mode : {Qt::ElideRight, Qt::ElideMiddle}) {
    EXPECT_TRUE(elided(odd, mode, 100'000).isValidUtf16());
  }
}

TEST(DisplayText, AVeryLongName_KeepsItsBeginning) {
  const QString shown = elided(QString(100'000, u'W'), Qt::ElideRight, 200);
  EXPECT_LE(widthOf(shown), 200);
  EXPECT_TRUE(shown.startsWith(u"WW"));
  EXPECT_TRUE(shown.endsWith(u'\u2026'));
}

}  // namespace lanternix
