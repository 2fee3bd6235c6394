#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QLocale>
#include <QtCore/QString>

namespace lanternix {

/// Text as the search compares it: case is folded by the rules of the user's language, composed and
/// decomposed forms are alike, accents are kept.
///
/// Folding is full ("ß" folds to "ss"), so that a needle of any length can meet it; what makes a
/// match is that it begins and ends between characters as a reader sees them (grapheme clusters),
/// so that "s" is not found in "ß", nor a woman in the family that one emoji shows.
namespace LocalizedText {

struct Folded {
  QByteArray utf8;
  /// Every character as a reader sees it is one code point and folds to one code point, so that any
  /// match on code point borders is a match of whole characters.
  bool simple = true;
};

/// \p text folded for comparison. In Turkish and Azerbaijani the dotted and the dotless i are
/// letters of their own.
Folded folded(const QString &text, const QLocale &locale = QLocale());

/// Appends \p text folded to \p utf8, for those who fold many texts into one buffer. Returns
/// whether it is simple (see Folded).
bool appendFolded(QByteArray &utf8, const QString &text, const QLocale &locale = QLocale());

/// Whether \p text contains \p needle as whole characters: "e" is not in "é", however that is
/// written. An empty needle is contained in nothing.
bool contains(const QString &text, const QString &needle, const QLocale &locale = QLocale());

}  // namespace LocalizedText

}  // namespace lanternix
