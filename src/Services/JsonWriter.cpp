#include "Services/JsonWriter.h"

#include "Services/JsonNumber.h"
#include "Services/Utf8.h"

#include <QtCore/QChar>
#include <QtCore/QUuid>
#include <QtCore/QtEndian>

#include <algorithm>
#include <array>
#include <charconv>
#include <cstring>
#include <utility>

namespace lanternix {

namespace {

constexpr std::string_view lowerCaseDigits = "0123456789abcdef";
constexpr std::string_view upperCaseDigits = "0123456789ABCDEF";

/// By character: whether it goes into a string as the one byte that it is.
constexpr std::array<bool, 128> plainCharacters = [] {
  std::array<bool, 128> plain{};
  for (std::size_t i = 0x20; i < plain.size(); ++i) {
    plain[i] = i != '"' && i != '\\' && i != '/';
  }
  return plain;
}();

/// By byte: its two upper-case hexadecimal digits.
constexpr std::array<std::array<char, 2>, 256> bytesInDigits = [] {
  std::array<std::array<char, 2>, 256> digits{};
  for (std::size_t i = 0; i < digits.size(); ++i) {
    digits[i] = {upperCaseDigits[i >> 4], upperCaseDigits[i & 0xf]};
  }
  return digits;
}();

}  // namespace

JsonWriter::JsonWriter(qsizetype expectedSize)
    : m_text(std::max<qsizetype>(expectedSize, 64), Qt::Uninitialized),
      m_position(m_text.data()),
      m_end(m_position + m_text.size()) {}

void JsonWriter::beginContainer(char bracket) {
  append(bracket);
  ++m_depth;
  m_isFirstEntry = true;
}

void JsonWriter::endContainer(char bracket) {
  --m_depth;
  if (m_isFirstEntry) {
    append('\n');
  }
  startLine();
  append(bracket);
  m_isFirstEntry = false;
}

void JsonWriter::beginEntry() {
  if (!m_isFirstEntry) {
    append(',');
  }
  m_isFirstEntry = false;
  startLine();
}

void JsonWriter::startLine() {
  const auto indent = static_cast<std::size_t>(2 * m_depth);
  reserve(1 + 2 * m_depth);
  *m_position++ = '\n';
  std::memset(m_position, ' ', indent);
  m_position += indent;
}

void JsonWriter::writeKey(std::string_view key) {
  beginEntry();
  append('"');
  append(key);
  append("\" : ");
}

void JsonWriter::writeString(QStringView text) {
  append('"');
  const char16_t *unit = text.utf16();
  const char16_t *const end = unit + text.size();
  while (unit != end) {
    constexpr qsizetype blockSize = 64;
    constexpr qsizetype longestCharacter = 6;  // an escape with four digits
    const char16_t *const blockEnd = unit + std::min<qsizetype>(end - unit, blockSize);
    reserve(blockSize * longestCharacter);
    while (unit < blockEnd) {
      if (*unit < plainCharacters.size() && plainCharacters[*unit]) {
        *m_position++ = static_cast<char>(*unit++);
      } else {
        unit = putCharacter(unit, end);
      }
    }
  }
  append('"');
}

const char16_t *JsonWriter::putCharacter(const char16_t *unit, const char16_t *end) {
  if (*unit < 0x80 && *unit != 0x7f) {
    putEscaped(*unit);
  } else if (!QChar::isSurrogate(*unit)) {
    m_position = writeUtf8(*unit, m_position);
  } else if (QChar::isHighSurrogate(*unit) && unit + 1 != end && QChar::isLowSurrogate(unit[1])) {
    m_position = writeUtf8(QChar::surrogateToUcs4(unit[0], unit[1]), m_position);
    return unit + 2;
  } else {
    m_position = writeUtf8(QChar::ReplacementCharacter, m_position);
  }
  return unit + 1;
}

void JsonWriter::putEscaped(char16_t unit) {
  *m_position++ = '\\';
  constexpr std::string_view meanings = "\"\\/\b\f\n\r\t";
  constexpr std::string_view letters = "\"\\/bfnrt";
  if (const std::size_t index = meanings.find(static_cast<char>(unit)); index < letters.size()) {
    *m_position++ = letters[index];
    return;
  }
  for (const char character :
       {'u', '0', '0', lowerCaseDigits[unit >> 4], lowerCaseDigits[unit & 0xf]}) {
    *m_position++ = character;
  }
}

void JsonWriter::writeUuid(const QUuid &uuid) {
  constexpr qsizetype length = 38;  // with the quotes
  reserve(length);
  const auto put = [this](quint64 value, int byteCount) {
    for (int shift = 8 * (byteCount - 1); shift >= 0; shift -= 8) {
      const std::array<char, 2> &digits = bytesInDigits[(value >> shift) & 0xff];
      *m_position++ = digits[0];
      *m_position++ = digits[1];
    }
  };
  *m_position++ = '"';
  put(uuid.data1, 4);
  *m_position++ = '-';
  put(uuid.data2, 2);
  *m_position++ = '-';
  put(uuid.data3, 2);
  *m_position++ = '-';
  const auto tail = qFromBigEndian<quint64>(&uuid.data4[0]);
  put(tail >> 48, 2);
  *m_position++ = '-';
  put(tail, 6);
  *m_position++ = '"';
}

void JsonWriter::writeReal(double value) {
  reserve(longestJsonNumber);
  m_position = writeJsonNumber(value, m_position);
}

void JsonWriter::writeInteger(qint64 value) {
  reserve(longestJsonNumber);
  m_position = std::to_chars(m_position, m_end, value).ptr;
}

void JsonWriter::writeBoolean(bool value) {
  append(value ? "true" : "false");
}

QByteArray JsonWriter::takeText() {
  m_text.resize(m_position - m_text.constData());
  return std::move(m_text);
}

void JsonWriter::append(char character) {
  reserve(1);
  *m_position++ = character;
}

void JsonWriter::append(std::string_view bytes) {
  reserve(static_cast<qsizetype>(bytes.size()));
  m_position = std::copy(bytes.begin(), bytes.end(), m_position);
}

void JsonWriter::grow(qsizetype count) {
  const qsizetype length = m_position - m_text.constData();
  m_text.resize(std::max(2 * m_text.size(), length + count));
  m_position = m_text.data() + length;
  m_end = m_text.data() + m_text.size();
}

}  // namespace lanternix
