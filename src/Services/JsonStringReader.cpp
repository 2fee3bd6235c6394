#include "Services/JsonStringReader.h"

#include "Services/Utf8.h"

#include <QtCore/QChar>
#include <QtCore/QtEndian>

#include <bit>
#include <cstring>
#include <iterator>

namespace lanternix {

namespace {

constexpr quint64 inEachByte(quint64 byte) {
  return byte * 0x0101'0101'0101'0101U;
}

/// The highest bit of the first of eight bytes that is below \p limit, and perhaps of later ones;
/// no bit when there is none. \p limit is at most 0x80.
constexpr quint64 bytesBelow(quint64 bytes, quint64 limit) {
  return (bytes - inEachByte(limit)) & ~bytes & inEachByte(0x80);
}

/// How many of eight bytes, the first being the lowest, stand before one that ends a run of plain
/// text: a quote, a backslash or a control character. Eight at a time, because a document is mostly
/// text.
int plainBytes(quint64 bytes) {
  const quint64 special = bytesBelow(bytes, 0x20) | bytesBelow(bytes ^ inEachByte('"'), 1) |
                          bytesBelow(bytes ^ inEachByte('\\'), 1);
  return std::countr_zero(special) / 8;
}

constexpr bool isSpecial(char character) {
  const auto byte = static_cast<unsigned char>(character);
  return byte < 0x20 || byte == '"' || byte == '\\';
}

/// What the letter behind a backslash stands for; NUL where it stands for nothing.
constexpr char meaningOfEscape(char letter) {
  switch (letter) {
    case '"':
    case '\\':
    case '/':
      return letter;
    case 'b':
      return '\b';
    case 'f':
      return '\f';
    case 'n':
      return '\n';
    case 'r':
      return '\r';
    case 't':
      return '\t';
    default:
      return '\0';
  }
}

/// The value of a hexadecimal digit in either case, -1 for anything else.
constexpr int hexadecimalDigit(char character) {
  if (character >= '0' && character <= '9') {
    return character - '0';
  }
  const char lower = static_cast<char>(character | 0x20);
  return lower >= 'a' && lower <= 'f' ? lower - 'a' + 10 : -1;
}

}  // namespace

const char *JsonStringReader::read(const char *position, const char *end) {
  m_position = position;
  m_end = end;
  m_seen = 0;
  scanPlainText();
  if (m_position != m_end && *m_position == '"') {
    m_content = QByteArrayView(position, m_position);
  } else if (!readEscapedText(position)) {
    return nullptr;
  }
  if (!isAscii() && !m_content.isValidUtf8()) {
    fail(position, "a string is not UTF-8");
    return nullptr;
  }
  return m_position + 1;
}

bool JsonStringReader::readEscapedText(const char *start) {
  m_resolved.clear();
  while (m_position != m_end && *m_position == '\\') {
    m_resolved.append(start, m_position);
    if (!appendEscape()) {
      return false;
    }
    start = m_position;
    scanPlainText();
  }
  if (m_position == m_end) {
    return fail(m_position, "a string has no end");
  }
  if (*m_position != '"') {
    return fail(m_position, "a string holds a bare control character");
  }
  m_resolved.append(start, m_position);
  m_content = QByteArrayView(m_resolved.data(), static_cast<qsizetype>(m_resolved.size()));
  return true;
}

void JsonStringReader::scanPlainText() {
  constexpr qptrdiff step = sizeof(quint64);
  while (m_end - m_position >= step) {
    const auto bytes = qFromLittleEndian<quint64>(m_position);
    const int plain = plainBytes(bytes);
    if (plain < step) {
      const quint64 counted = (quint64{1} << (8 * plain)) - 1;
      m_seen |= bytes & counted;
      m_position += plain;
      return;
    }
    m_seen |= bytes;
    m_position += step;
  }
  while (m_position != m_end && !isSpecial(*m_position)) {
    m_seen |= static_cast<unsigned char>(*m_position);
    ++m_position;
  }
}

bool JsonStringReader::appendEscape() {
  ++m_position;  // the backslash
  if (m_position == m_end) {
    return fail(m_position, "a string has no end");
  }
  if (*m_position == 'u') {
    ++m_position;
    return appendUnicodeEscape();
  }
  const char meaning = meaningOfEscape(*m_position);
  if (meaning == '\0') {
    return fail(m_position, "an escape is unknown");
  }
  m_resolved.push_back(meaning);
  ++m_position;
  return true;
}

bool JsonStringReader::appendUnicodeEscape() {
  const char *const escape = m_position;
  char32_t codePoint = 0;
  if (!readCodeUnit(codePoint)) {
    return false;
  }
  if (QChar::isLowSurrogate(codePoint)) {
    return fail(escape, "an escape is half a character");
  }
  if (QChar::isHighSurrogate(codePoint)) {
    char32_t low = 0;
    if (m_end - m_position < 2 || std::memcmp(m_position, "\\u", 2) != 0) {
      return fail(escape, "an escape is half a character");
    }
    m_position += 2;
    if (!readCodeUnit(low)) {
      return false;
    }
    if (!QChar::isLowSurrogate(low)) {
      return fail(escape, "an escape is half a character");
    }
    codePoint =
        QChar::surrogateToUcs4(static_cast<char16_t>(codePoint), static_cast<char16_t>(low));
  }
  m_seen |= codePoint < 0x80 ? 0 : 0x80;
  writeUtf8(codePoint, std::back_inserter(m_resolved));
  return true;
}

bool JsonStringReader::readCodeUnit(char32_t &unit) {
  constexpr qptrdiff digits = 4;
  if (m_end - m_position < digits) {
    return fail(m_position, "an escape needs four hexadecimal digits");
  }
  unit = 0;
  for (const char *const end = m_position + digits; m_position != end; ++m_position) {
    const int digit = hexadecimalDigit(*m_position);
    if (digit < 0) {
      return fail(m_position, "an escape needs four hexadecimal digits");
    }
    unit = unit * 16 + static_cast<char32_t>(digit);
  }
  return true;
}

bool JsonStringReader::fail(const char *position, const char *error) {
  m_error = error;
  m_errorPosition = position;
  return false;
}

}  // namespace lanternix
