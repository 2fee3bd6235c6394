#include "Utilities/LocalizedText.h"

#include <QtCore/QTextBoundaryFinder>

#include <algorithm>
#include <vector>

namespace lanternix::LocalizedText {

namespace {

constexpr char16_t sharpS = u'\u00df';
constexpr char16_t dottedCapitalI = u'\u0130';
constexpr char16_t dotlessSmallI = u'\u0131';
constexpr char16_t smallNAfterApostrophe = u'\u0149';

bool hasTurkicI(const QLocale &locale) {
  return locale.language() == QLocale::Turkish || locale.language() == QLocale::Azerbaijani;
}

// What a text asks of folding. Names and paths are nearly always of the first two kinds, which are
// dealt with quickly, so that all of them can be folded between a key press and the next picture.
enum class Script {
  ascii,         // the letters A to Z at most
  oneToOne,      // each unit is a character, and its case folding is another one
  anythingElse,  // characters of several code points, letters that fold to several
};

constexpr bool foldsOneToOne(char16_t unit) {
  const auto isBetween = [unit](char16_t first, char16_t last) {
    return first <= unit && unit <= last;
  };
  if (unit < 0x300) {  // Latin letters
    // A carriage return may make one character with the line feed after it.
    return unit != u'\r' && unit != sharpS && unit != dottedCapitalI &&
           unit != smallNAfterApostrophe;
  }
  return isBetween(0x388, 0x482) || isBetween(0x48a, 0x52f) ||      // Greek and Cyrillic letters
         isBetween(0x3041, 0x3096) || isBetween(0x309b, 0x9fff) ||  // kana and Han
         isBetween(0xac00, 0xd7a3);                                 // Hangul syllables
}

Script scriptOf(QStringView text, bool turkicI) {
  char16_t all = 0;
  bool exceptional = false;
  for (const QChar character : text) {
    const char16_t unit = character.unicode();
    all = static_cast<char16_t>(all | unit);
    exceptional |= unit == u'\r' || (turkicI && unit == u'I');
  }
  if (exceptional) {
    return Script::anythingElse;
  }
  if (all < 0x80) {
    return Script::ascii;
  }
  const bool oneToOne = std::all_of(
      text.begin(), text.end(), [](QChar character) { return foldsOneToOne(character.unicode()); });
  return oneToOne ? Script::oneToOne : Script::anythingElse;
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

// QString::fromUcs4() would take a zero width no-break space for a mark of the byte order.
QString characterOf(char32_t codePoint) {
  return QStringView(QChar::fromUcs4(codePoint)).toString();
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
    const QString letter = characterOf(codePoint);
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
  if (text.isValidUtf16()) {
    return text;
  }
  QString result;
  for (const char32_t codePoint : text.toStdU32String()) {
    result += characterOf(codePoint);
  }
  return result;
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
  switch (scriptOf(text, turkicI)) {
    case Script::ascii:
      appendAsciiFolded(utf8, text);
      return true;
    case Script::oneToOne:
      utf8 += text.toCaseFolded().toUtf8();
      return true;
    case Script::anythingElse:
      break;
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
