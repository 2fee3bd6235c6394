#include "Utilities/LocalizedText.h"

#include <QtCore/QTextBoundaryFinder>

#include <algorithm>
#include <cstring>
#include <vector>

namespace lanternix::LocalizedText {

namespace {

constexpr char16_t dottedCapitalI = u'\u0130';
constexpr char16_t dotlessSmallI = u'\u0131';

bool hasTurkicI(const QLocale &locale) {
  return locale.language() == QLocale::Turkish || locale.language() == QLocale::Azerbaijani;
}

// Whether folding \p text is a matter of the letters A to Z alone and each unit is a character. A
// carriage return may make one character with the line feed after it.
bool isPlainAscii(QStringView text, bool turkicI) {
  char16_t all = 0;
  bool exceptional = false;
  for (const QChar character : text) {
    const char16_t unit = character.unicode();
    all = static_cast<char16_t>(all | unit);
    exceptional |= unit == u'\r' || (turkicI && unit == u'I');
  }
  return all < 0x80 && !exceptional;
}

void appendAsciiFolded(QByteArray &utf8, QStringView text) {
  const qsizetype start = utf8.size();
  utf8.resize(start + text.size());
  char *to = utf8.data() + start;
  for (const QChar character : text) {
    const auto unit = static_cast<unsigned char>(character.unicode());
    const bool isCapital = static_cast<unsigned char>(unit - 'A') < 26;
    *to++ = static_cast<char>(isCapital ? unit + ('a' - 'A') : unit);
  }
}

// QString folds each letter to one letter. Those that stand for several ("ß", "ﬁ") are just those
// whose upper case is longer.
QString expanded(const QString &simplyFolded) {
  const QString upper = simplyFolded.toUpper();
  if (upper.size() == simplyFolded.size()) {
    return simplyFolded;
  }
  QString result;
  result.reserve(upper.size());
  for (const char32_t codePoint : simplyFolded.toStdU32String()) {
    const QString letter = QString::fromUcs4(&codePoint, 1);
    const QString capital = letter.toUpper();
    result += capital.size() > letter.size() ? capital.toCaseFolded() : letter;
  }
  return result;
}

// The composed form of the case folding of the decomposed form, which is the same for all texts
// that differ in case or in their way of composing characters only.
QString foldedText(const QString &text, bool turkicI) {
  QString result = text;
  if (turkicI) {
    // Composed first, so that an I with a dot of its own is one unit; an I under another accent is
    // left to the general rule, which keeps it together with the small letter under that accent.
    result = result.normalized(QString::NormalizationForm_C);
    result.replace(dottedCapitalI, u'i').replace(u'I', dotlessSmallI);
  }
  result = result.normalized(QString::NormalizationForm_D).toCaseFolded();
  return expanded(result).normalized(QString::NormalizationForm_C);
}

// Half a surrogate pair is no character. Left alone it would turn into a question mark in UTF-8.
QString withoutLoneSurrogates(const QString &text) {
  return text.isValidUtf16() ? text : QString::fromStdU32String(text.toStdU32String());
}

qsizetype codePointCount(QStringView text) {
  return text.size() -
         std::count_if(text.begin(), text.end(), [](QChar unit) { return unit.isLowSurrogate(); });
}

qsizetype characterCount(const QString &text) {
  QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text);
  qsizetype count = 0;
  while (finder.toNextBoundary() > 0) {
    ++count;
  }
  return count;
}

// Whether each character of \p text has become one code point of \p folded. None becomes less than
// one, so that it is enough to count.
bool isSimple(const QString &text, const QString &folded) {
  const auto standsAlone = [](QChar unit) { return unit.unicode() < 0x300 && unit != u'\r'; };
  if (text.size() == folded.size() && std::all_of(text.begin(), text.end(), standsAlone)) {
    return true;  // below the combining marks every code point is a character
  }
  return codePointCount(folded) == characterCount(text);
}

// A text folded character by character, with the places where one ends and the next begins.
struct FoldedCharacters {
  QByteArray utf8;
  std::vector<qsizetype> borders{0};

  FoldedCharacters(const QString &text, const QLocale &locale) {
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text);
    qsizetype begin = 0;
    for (qsizetype end = finder.toNextBoundary(); end > 0; end = finder.toNextBoundary()) {
      appendFolded(utf8, text.sliced(begin, end - begin), locale);
      borders.push_back(utf8.size());
      begin = end;
    }
  }

  bool isBorder(qsizetype position) const {
    return std::binary_search(borders.begin(), borders.end(), position);
  }

  bool contains(QByteArrayView needle) const {
    for (qsizetype at = utf8.indexOf(needle); at >= 0; at = utf8.indexOf(needle, at + 1)) {
      if (isBorder(at) && isBorder(at + needle.size())) {
        return true;
      }
    }
    return false;
  }
};

}  // namespace

bool appendFolded(QByteArray &utf8, const QString &text, const QLocale &locale) {
  const bool turkicI = hasTurkicI(locale);
  if (isPlainAscii(text, turkicI)) {
    appendAsciiFolded(utf8, text);
    return true;
  }
  const QString valid = withoutLoneSurrogates(text);
  const QString folded = foldedText(valid, turkicI);
  utf8 += folded.toUtf8();
  return isSimple(valid, folded);
}

Folded folded(const QString &text, const QLocale &locale) {
  Folded result;
  result.simple = appendFolded(result.utf8, text, locale);
  return result;
}

bool contains(const QString &text, const QString &needle, const QLocale &locale) {
  if (needle.isEmpty()) {
    return false;
  }
  const QByteArray foldedNeedle = folded(needle, locale).utf8;
  const Folded foldedText = folded(text, locale);
  if (!foldedText.utf8.contains(foldedNeedle)) {
    return false;
  }
  return foldedText.simple || FoldedCharacters(text, locale).contains(foldedNeedle);
}

}  // namespace lanternix::LocalizedText
