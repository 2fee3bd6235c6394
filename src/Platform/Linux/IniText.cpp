#include "Platform/Linux/IniText.h"

#include <QtCore/QList>
#include <QtCore/QString>

#include <algorithm>

namespace lanternix {

using namespace Qt::StringLiterals;

namespace {

constexpr QByteArrayView byteOrderMark = "\xef\xbb\xbf";

bool isLineBreak(char character) {
  return character == '\n' || character == '\r';
}

bool isSpace(char character) {
  return character == ' ' || character == '\t' || isLineBreak(character);
}

/// A line as QSettings sees it: without leading white space and without the comment that may
/// follow. It goes on behind a line break that is quoted or escaped.
struct Line {
  qsizetype start = 0;
  qsizetype end = 0;
  /// Where its first equals sign stands, -1 without one.
  qsizetype equals = -1;

  QByteArrayView in(QByteArrayView text) const { return text.sliced(start, end - start); }
  QByteArrayView keyIn(QByteArrayView text) const {
    return equals < 0 ? QByteArrayView() : text.sliced(start, equals - start).trimmed();
  }
};

qsizetype skipSpaceAndComments(QByteArrayView text, qsizetype position) {
  while (position < text.size() && (isSpace(text[position]) || text[position] == ';')) {
    if (text[position] == ';') {
      position = std::find_if(text.begin() + position, text.end(), isLineBreak) - text.begin();
    } else {
      ++position;
    }
  }
  return position;
}

/// The line that begins at \p start, which is neither white space nor a comment.
Line lineAt(QByteArrayView text, qsizetype start) {
  Line line{start, start, -1};
  bool isQuoted = false;
  for (; line.end < text.size(); ++line.end) {
    const char character = text[line.end];
    if (!isQuoted && (isLineBreak(character) || character == ';')) {
      return line;
    }
    if (!isQuoted && character == '=' && line.equals < 0) {
      line.equals = line.end;
    } else if (character == '"') {
      isQuoted = !isQuoted;
    } else if (character == '\\') {
      ++line.end;
      const QByteArrayView escaped = text.sliced(std::min(line.end, text.size()));
      line.end += escaped.startsWith("\r\n") || escaped.startsWith("\n\r") ? 1 : 0;
    }
  }
  line.end = text.size();
  return line;
}

bool isGeneralHeader(QByteArrayView line) {
  const qsizetype bracket = line.indexOf(']');
  const QByteArrayView name = bracket < 0 ? line.sliced(1) : line.sliced(1, bracket - 1);
  return name.trimmed().compare("general", Qt::CaseInsensitive) == 0;
}

bool endsWithBracket(QByteArrayView header) {
  return header.indexOf(']') == header.size() - 1;
}

/// Where in a file the values of one key stand, and where a new one can go.
struct Places {
  QList<Line> values;
  /// Behind the header of the section; -1 without one that can be built upon.
  qsizetype sectionStart = -1;
};

Places placesOf(QByteArrayView key, QByteArrayView text) {
  Places places;
  bool isGeneral = true;  // so are the keys above the first header
  qsizetype position = text.startsWith(byteOrderMark) ? byteOrderMark.size() : 0;
  while ((position = skipSpaceAndComments(text, position)) < text.size()) {
    const Line line = lineAt(text, position);
    position = line.end;
    if (line.in(text).startsWith('[')) {
      isGeneral = isGeneralHeader(line.in(text));
      // Behind the bracket, an open quote may lurk.
      if (isGeneral && places.sectionStart < 0 && endsWithBracket(line.in(text).trimmed())) {
        places.sectionStart = line.end;
      }
    } else if (isGeneral && line.keyIn(text) == key) {
      places.values.append(line);
    }
  }
  return places;
}

/// Whether a character can stand in a value as it is even without quotes round the value.
bool isHarmless(QChar character) {
  const char16_t unit = character.unicode();
  return unit < 0x80 && (character.isLetterOrNumber() || u"-+_.:/"_s.contains(character));
}

bool isHexadecimalDigit(QChar character) {
  return u"0123456789abcdefABCDEF"_s.contains(character);
}

/// Whether \p text[\p index] would not survive as UTF-8 text between quotes.
bool needsCode(QStringView text, qsizetype index) {
  const QChar character = text[index];
  if (character.isHighSurrogate()) {
    return index + 1 == text.size() || !text[index + 1].isLowSurrogate();
  }
  if (character.isLowSurrogate()) {
    return index == 0 || !text[index - 1].isHighSurrogate();
  }
  return character < u' ' || character == u'\x7f' || character == QChar::ByteOrderMark;
}

QString quoted(QStringView text) {
  QString result = u"\""_s;
  bool isAfterCode = false;
  for (qsizetype i = 0; i < text.size(); ++i) {
    // A hexadecimal code takes in every digit that follows.
    isAfterCode = needsCode(text, i) || (isAfterCode && isHexadecimalDigit(text[i]));
    if (isAfterCode) {
      result += u"\\x"_s + QString::number(text[i].unicode(), 16);
    } else {
      if (text[i] == u'"' || text[i] == u'\\') {
        result += u'\\';
      }
      result += text[i];
    }
  }
  return result + u'"';
}

QByteArray encoded(const QVariant &value) {
  QString text;
  if (value.typeId() == QMetaType::QByteArray) {
    text = u"@ByteArray("_s + QString::fromLatin1(value.toByteArray()) + u')';
  } else {
    text = value.toString();
    if (text.startsWith(u'@')) {
      text.prepend(u'@');  // one alone announces a type
    }
  }
  const bool isPlain = !text.isEmpty() && std::all_of(text.begin(), text.end(), isHarmless);
  return isPlain ? text.toUtf8() : quoted(text).toUtf8();
}

}  // namespace

QByteArray withIniValue(QByteArrayView text, QByteArrayView key, const QVariant &value) {
  QByteArray result = text.toByteArray();
  const QByteArray newValue = encoded(value);
  const QByteArray entry = key.toByteArray() + '=' + newValue;
  const Places places = placesOf(key, text);
  // From the back, so that the places before stay where they are.
  for (auto line = places.values.rbegin(); line != places.values.rend(); ++line) {
    const qsizetype start = line->equals + 1;
    result.replace(start, line->end - start, newValue);
  }
  if (!places.values.isEmpty()) {
    return result;
  }
  if (places.sectionStart >= 0) {
    const auto rest = text.begin() + places.sectionStart;
    const qsizetype lineEnd = std::find_if(rest, text.end(), isLineBreak) - text.begin();
    return result.insert(lineEnd, '\n' + entry + (lineEnd == text.size() ? "\n" : ""));
  }
  const qsizetype top = text.startsWith(byteOrderMark) ? byteOrderMark.size() : 0;
  const QByteArray section = "[General]\n" + entry + '\n';
  return result.insert(top, top == text.size() ? section : section + '\n');
}

}  // namespace lanternix
