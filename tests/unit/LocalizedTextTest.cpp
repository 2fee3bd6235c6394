#include "Utilities/LocalizedText.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using lanternix::LocalizedText::contains;
using lanternix::LocalizedText::folded;

namespace {

const QLocale english(QLocale::English, QLocale::UnitedKingdom);
const QLocale turkish(QLocale::Turkish, QLocale::Turkey);
const QLocale azerbaijani(QLocale::Azerbaijani, QLocale::Azerbaijan);
const QLocale german(QLocale::German, QLocale::Germany);

bool inEnglish(const QString &text, const QString &needle) {
  return contains(text, needle, english);
}

QByteArray fold(const QString &text, const QLocale &locale = english) {
  return folded(text, locale).utf8;
}

}  // namespace

TEST(LocalizedText, Contains_AnotherCase_IsFound) {
  EXPECT_TRUE(inEnglish(u"Docs"_s, u"doc"_s));
  EXPECT_TRUE(inEnglish(u"docs"_s, u"DOCS"_s));
  EXPECT_TRUE(inEnglish(u"ПРИВЕТ, Мир"_s, u"привет"_s));
  EXPECT_TRUE(inEnglish(u"\U00010400x"_s, u"\U00010428X"_s));  // letters beyond 16 bits
}

TEST(LocalizedText, Contains_TextThatIsNotThere_IsNotFound) {
  EXPECT_FALSE(inEnglish(u"Docs"_s, u"dog"_s));
  EXPECT_FALSE(inEnglish(u"Docs"_s, u"docs "_s));
  EXPECT_FALSE(inEnglish(QString(), u"a"_s));
}

TEST(LocalizedText, Contains_EmptyNeedle_IsInNothing) {
  EXPECT_FALSE(inEnglish(u"Docs"_s, QString()));
  EXPECT_FALSE(inEnglish(QString(), u""_s));
}

TEST(LocalizedText, Contains_OnlyLettersOfTheAlphabetFold_WithinAscii) {
  EXPECT_FALSE(inEnglish(u"@["_s, u"`{"_s));
  EXPECT_EQ(fold(u"@AZ[`az{09"_s), "@az[`az{09");
}

TEST(LocalizedText, Contains_Blanks_AreTextLikeAnyOther) {
  EXPECT_TRUE(inEnglish(u"a   b"_s, u"   "_s));
  EXPECT_FALSE(inEnglish(u"a  b"_s, u"   "_s));
}

TEST(LocalizedText, Contains_SharpS_MatchesDoubleS) {
  EXPECT_TRUE(inEnglish(u"Straße"_s, u"strasse"_s));
  EXPECT_TRUE(inEnglish(u"STRASSE"_s, u"straße"_s));
  EXPECT_TRUE(inEnglish(u"STRAẞE"_s, u"straße"_s));
  EXPECT_TRUE(contains(u"Straße"_s, u"SS"_s, german));
}

TEST(LocalizedText, Contains_HalfOfSharpS_IsNotFound) {
  EXPECT_FALSE(inEnglish(u"Maß"_s, u"s"_s));
  EXPECT_FALSE(inEnglish(u"Maß"_s, u"mas"_s));
  EXPECT_FALSE(inEnglish(u"ßa"_s, u"sa"_s));
  EXPECT_TRUE(inEnglish(u"Maßs"_s, u"s"_s));
}

TEST(LocalizedText, Contains_Ligature_MatchesItsLettersTogether) {
  EXPECT_TRUE(inEnglish(u"ﬁle"_s, u"FI"_s));
  EXPECT_TRUE(inEnglish(u"file"_s, u"ﬁ"_s));
  EXPECT_FALSE(inEnglish(u"ﬁle"_s, u"f"_s));
  EXPECT_FALSE(inEnglish(u"ﬁle"_s, u"ile"_s));
}

TEST(LocalizedText, Contains_Sigma_MatchesInAllItsForms) {
  EXPECT_TRUE(inEnglish(u"ΟΔΟΣ"_s, u"οδος"_s));
  EXPECT_TRUE(inEnglish(u"οδος"_s, u"οδοσ"_s));
}

TEST(LocalizedText, Contains_Cherokee_MatchesInBothCases) {
  EXPECT_TRUE(inEnglish(u"\u13A0"_s, u"\uAB70"_s));
  EXPECT_TRUE(inEnglish(u"\uAB70"_s, u"\u13A0"_s));
}

TEST(LocalizedText, Contains_ComposedAndDecomposed_AreAlike) {
  EXPECT_TRUE(inEnglish(u"Caf\u00e9"_s, u"cafe\u0301"_s));
  EXPECT_TRUE(inEnglish(u"cafe\u0301"_s, u"CAF\u00c9"_s));
  EXPECT_TRUE(inEnglish(u"\ud55c\uae00"_s, u"\u1112\u1161\u11ab"_s));  // a syllable and its letters
  EXPECT_TRUE(inEnglish(u"a\u0323\u0307"_s, u"a\u0307\u0323"_s));      // marks in either order
}

TEST(LocalizedText, Contains_LetterWithoutItsAccent_IsNotFound) {
  EXPECT_FALSE(inEnglish(u"\u00e9"_s, u"e"_s));
  EXPECT_FALSE(inEnglish(u"e\u0301"_s, u"e"_s));
  EXPECT_FALSE(inEnglish(u"cafe\u0301"_s, u"cafe"_s));
  EXPECT_FALSE(inEnglish(u"x\u0323"_s, u"x"_s));  // has no composed form
}

TEST(LocalizedText, Contains_AccentThatIsNotThere_IsNotFound) {
  EXPECT_FALSE(inEnglish(u"cafe"_s, u"caf\u00e9"_s));
  EXPECT_FALSE(inEnglish(u"e\u0301"_s, u"\u0301"_s));
}

TEST(LocalizedText, Contains_LaterWholeCharacterAfterAHalfOne_IsFound) {
  EXPECT_TRUE(inEnglish(u"x\u0323 and x"_s, u"x"_s));
  EXPECT_FALSE(inEnglish(u"x\u0323 and y"_s, u"x"_s));
}

TEST(LocalizedText, Contains_PartOfAnEmoji_IsNotFound) {
  EXPECT_FALSE(inEnglish(u"👩‍👩‍👧"_s, u"👩"_s));
  EXPECT_FALSE(inEnglish(u"👩‍👩‍👧"_s, u"👧"_s));
  EXPECT_FALSE(inEnglish(u"👍🏽"_s, u"👍"_s));
  EXPECT_TRUE(inEnglish(u"our 👩‍👩‍👧!"_s, u"👩‍👩‍👧"_s));
  EXPECT_TRUE(inEnglish(u"👩‍👩‍👧👩"_s, u"👩"_s));
}

TEST(LocalizedText, Contains_FlagAcrossTwoFlags_IsNotFound) {
  EXPECT_TRUE(inEnglish(u"🇩🇪🇫🇷"_s, u"🇫🇷"_s));
  EXPECT_FALSE(inEnglish(u"🇩🇪🇫🇷"_s, u"🇪🇫"_s));
}

TEST(LocalizedText, Contains_TurkishDottedI_IsALetterOfItsOwn) {
  for (const QLocale &locale : {turkish, azerbaijani}) {
    EXPECT_TRUE(contains(u"İstanbul"_s, u"istanbul"_s, locale));
    EXPECT_TRUE(contains(u"istanbul"_s, u"İSTANBUL"_s, locale));
    EXPECT_TRUE(contains(u"I\u0307stanbul"_s, u"istanbul"_s, locale));
    EXPECT_FALSE(contains(u"istanbul"_s, u"I"_s, locale));
  }
}

TEST(LocalizedText, Contains_TurkishDotlessI_IsALetterOfItsOwn) {
  for (const QLocale &locale : {turkish, azerbaijani}) {
    EXPECT_TRUE(contains(u"Isparta"_s, u"ısparta"_s, locale));
    EXPECT_TRUE(contains(u"ısparta"_s, u"ISPARTA"_s, locale));
    EXPECT_FALSE(contains(u"Isparta"_s, u"i"_s, locale));
  }
}

TEST(LocalizedText, Contains_TurkishIUnderAnotherAccent_MatchesItsSmallLetter) {
  EXPECT_TRUE(contains(u"Ísland"_s, u"ísland"_s, turkish));
  EXPECT_TRUE(contains(u"I\u0301sland"_s, u"ísland"_s, turkish));
}

TEST(LocalizedText, Contains_IsElsewhere_FollowTheGeneralRule) {
  EXPECT_TRUE(inEnglish(u"I"_s, u"i"_s));
  EXPECT_FALSE(inEnglish(u"ı"_s, u"i"_s));
  EXPECT_FALSE(inEnglish(u"İ"_s, u"i"_s));
  EXPECT_TRUE(inEnglish(u"İ"_s, u"i\u0307"_s));
}

TEST(LocalizedText, Contains_DefaultLocale_IsTheUsers) {
  const QLocale before;
  QLocale::setDefault(turkish);
  EXPECT_TRUE(contains(u"Isparta"_s, u"ısparta"_s));
  QLocale::setDefault(english);
  EXPECT_FALSE(contains(u"Isparta"_s, u"ısparta"_s));
  QLocale::setDefault(before);
}

TEST(LocalizedText, Contains_ControlsAndNul_AreTextLikeAnyOther) {
  const QString text = u"a\tb\nc"_s + QChar(u'\0') + u"Dé"_s;
  EXPECT_TRUE(inEnglish(text, u"A\tB\nC"_s));
  EXPECT_TRUE(inEnglish(text, QString(QChar(u'\0')) + u"d"_s));
  EXPECT_TRUE(inEnglish(text, u"é"_s));
}

TEST(LocalizedText, Contains_LineEndOfTwoControls_IsOneCharacter) {
  EXPECT_TRUE(inEnglish(u"a\r\nb"_s, u"b"_s));
  EXPECT_TRUE(inEnglish(u"a\r\nb"_s, u"A\r\nB"_s));
  EXPECT_FALSE(inEnglish(u"a\r\nb"_s, u"a\r"_s));
  EXPECT_TRUE(inEnglish(u"a\rb"_s, u"a\r"_s));
}

TEST(LocalizedText, Contains_HalfASurrogatePair_IsNoQuestionMarkNorPartOfAPair) {
  const QString broken = u"a"_s + QChar(u'\xd83d') + u"b"_s;
  EXPECT_TRUE(inEnglish(broken, u"A"_s));
  EXPECT_FALSE(inEnglish(broken, u"?"_s));
  EXPECT_FALSE(inEnglish(u"😀"_s, QString(QChar(u'\xd83d'))));
}

TEST(LocalizedText, Folded_ZeroWidthNoBreakSpace_StaysInItsPlace) {
  EXPECT_EQ(fold(u"\ufeffA\ufeff"_s), u"\ufeffa\ufeff"_s.toUtf8());
  EXPECT_EQ(fold(u"\ufeffß\ufeff"_s), u"\ufeffss\ufeff"_s.toUtf8());
  EXPECT_EQ(fold(u"\ufeffa"_s + QChar(u'\xd83d')), u"\ufeffa\ufffd"_s.toUtf8());
}

TEST(LocalizedText, Folded_TextOfWholeCodePoints_IsSimple) {
  for (const QString &text : {u"Docs/report.pdf"_s, u"Café"_s, u"cafe\u0301"_s, u"Привет"_s,
                              u"日本語"_s, u"한글"_s, u"😀"_s, QString()}) {
    EXPECT_TRUE(folded(text, english).simple) << text.toStdString();
  }
}

TEST(LocalizedText, Folded_TextOfCombinedCharacters_IsNotSimple) {
  for (const QString &text :
       {u"x\u0323"_s, u"Maß"_s, u"ﬁ"_s, u"👍🏽"_s, u"🇩🇪"_s, u"a\r\nb"_s, u"कि"_s, u"İ"_s}) {
    EXPECT_FALSE(folded(text, english).simple) << text.toStdString();
  }
}

TEST(LocalizedText, Folded_FoldedText_StaysAsItIs) {
  for (const QString &text : {u"STRAẞE"_s, u"ΐ"_s, u"ŉ"_s, u"ᾳ"_s, u"\u0345"_s, u"ǅ"_s, u"ﬃ"_s}) {
    const QByteArray once = fold(text);
    EXPECT_EQ(fold(QString::fromUtf8(once)), once) << text.toStdString();
  }
}

TEST(LocalizedText, AppendFolded_AddsToWhatIsThere) {
  QByteArray texts = "a\xff";
  EXPECT_TRUE(lanternix::LocalizedText::appendFolded(texts, u"Bé"_s, english));
  EXPECT_EQ(texts,
            "a\xff"
            "bé");
}
