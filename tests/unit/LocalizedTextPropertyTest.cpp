// Folding and matching of every letter and of random texts, against what they mean by definition.
#include "Utilities/LocalizedText.h"

#include <QtCore/QRandomGenerator>
#include <QtCore/QStringList>
#include <QtCore/QTextBoundaryFinder>

#include <gtest/gtest.h>
#include <ios>

using namespace Qt::StringLiterals;
using lanternix::LocalizedText::contains;
using lanternix::LocalizedText::folded;

namespace {

const QLocale english(QLocale::English, QLocale::UnitedKingdom);
const QLocale turkish(QLocale::Turkish, QLocale::Turkey);

QByteArray fold(const QString &text, const QLocale &locale) {
  return folded(text, locale).utf8;
}

// Characters that take part in every rule of folding, joining and reordering.
const QStringList alphabet{u"a"_s,      u"A"_s,      u"e"_s,      u"é"_s,  u"É"_s,      u"\u0301"_s,
                           u"\u0323"_s, u"\u0307"_s, u"ß"_s,      u"s"_s,  u"S"_s,      u"ﬁ"_s,
                           u"f"_s,      u"i"_s,      u"I"_s,      u"İ"_s,  u"ı"_s,      u"Í"_s,
                           u"👩"_s,      u"\u200d"_s, u"🏽"_s,   u"🇩"_s,  u"🇪"_s,      u"\r"_s,
                           u"\n"_s,     u"\u1112"_s, u"\u1161"_s, u"한"_s, u"\u0345"_s, u"α"_s,
                           u"Ω"_s,      u"ŉ"_s,      u"ΐ"_s,      u" "_s,  u"\u0600"_s, u"Å"_s};

QString randomText(QRandomGenerator &random, int longest) {
  QString text;
  for (int length = random.bounded(longest + 1); length > 0; --length) {
    text += alphabet[random.bounded(static_cast<int>(alphabet.size()))];
  }
  return text;
}

QStringList characters(const QString &text) {
  QStringList result;
  QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text);
  qsizetype begin = 0;
  for (qsizetype end = finder.toNextBoundary(); end > 0; end = finder.toNextBoundary()) {
    result.append(text.sliced(begin, end - begin));
    begin = end;
  }
  return result;
}

// What containing means, word by word: some run of whole characters folds to what the needle does.
bool containsByDefinition(const QString &text, const QString &needle, const QLocale &locale) {
  const QStringList parts = characters(text);
  for (qsizetype begin = 0; begin < parts.size(); ++begin) {
    for (qsizetype count = 1; begin + count <= parts.size(); ++count) {
      if (fold(parts.sliced(begin, count).join(QString()), locale) == fold(needle, locale)) {
        return true;
      }
    }
  }
  return false;
}

}  // namespace

TEST(LocalizedTextProperties, Folded_EveryLetter_IsTheSameAmongCharactersOfSeveralCodePoints) {
  const QString emoji = u"👍🏽"_s;  // a text with it cannot be folded letter by letter
  for (const QLocale &locale : {english, turkish}) {
    for (char32_t codePoint = 0; codePoint < 0x30000; ++codePoint) {
      const QString letter = QStringView(QChar::fromUcs4(codePoint)).toString();
      ASSERT_EQ(fold(emoji + letter + emoji, locale),
                fold(emoji, locale) + fold(letter, locale) + fold(emoji, locale))
          << "U+" << std::hex << static_cast<quint32>(codePoint);
    }
  }
}

TEST(LocalizedTextProperties, Folded_SimpleLetters_AreCharactersOfTheirOwn) {
  for (char32_t codePoint = 0; codePoint < 0x30000; ++codePoint) {
    const QString letter = QStringView(QChar::fromUcs4(codePoint)).toString();
    const QString twice = letter + letter;
    if (QChar::isMark(codePoint) || !folded(twice, english).simple) {
      continue;  // a mark alone is a character, behind a letter it is none
    }
    ASSERT_TRUE(contains(u"x"_s + twice, letter, english)) << static_cast<quint32>(codePoint);
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, twice);
    ASSERT_EQ(finder.toNextBoundary(), letter.size()) << static_cast<quint32>(codePoint);
  }
}

TEST(LocalizedTextProperties, Contains_RandomTexts_FollowsTheDefinition) {
  QRandomGenerator random(20260307);
  int found = 0;
  for (int round = 0; round < 20'000; ++round) {
    const QString text = randomText(random, 8);
    const QString needle = randomText(random, 2);
    const QLocale &locale = round % 2 == 0 ? english : turkish;
    const bool expected = !needle.isEmpty() && containsByDefinition(text, needle, locale);
    ASSERT_EQ(contains(text, needle, locale), expected)
        << fold(text, english).toHex(' ').toStdString() << " / "
        << fold(needle, english).toHex(' ').toStdString();
    found += expected ? 1 : 0;
  }
  EXPECT_GT(found, 500);  // or the comparison would say little
}

TEST(LocalizedTextProperties, Folded_RandomTexts_DoNotDependOnComposition) {
  QRandomGenerator random(7);
  for (int round = 0; round < 5'000; ++round) {
    const QString text = randomText(random, 10);
    const QString composed = text.normalized(QString::NormalizationForm_C);
    const QString decomposed = text.normalized(QString::NormalizationForm_D);
    for (const QLocale &locale : {english, turkish}) {
      ASSERT_EQ(fold(composed, locale), fold(decomposed, locale));
      ASSERT_EQ(folded(composed, locale).simple, folded(decomposed, locale).simple);
    }
  }
}
