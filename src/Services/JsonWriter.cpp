#include "Services/JsonWriter.h"

#include "Services/JsonNumber.h"

#include <QtCore/QChar>
#include <QtCore/QUuid>
#include <QtCore/QtEndian>

#include <algorithm>
#include <charconv>
#include <cstring>
#include <utility>

namespace lanternix {

namespace {

constexpr QByteArrayView lowerCaseDigits = "0123456789abcdef";
constexpr QByteArrayView upperCaseDigits = "0123456789ABCDEF";

/// Whether a character goes into a string as the one byte that it is.
constexpr bool isPlain(char16_t unit) {
  return unit >= 0x20 && unit < 0x80 && unit != u'"' && unit != u'\\' && unit != u'/';
}

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

void JsonWriter::writeKey(QByteArrayView key) {
  beginEntry();
  append('"');
  append(key);
  append("\" : ");
}

void JsonWriter::writeString(QStringView text) {
  append('"');
  const char16_t *unit = text.utf16();
  const char16_t *const end = unit + text.size();
  for (; unit != end; ++unit) {
    constexpr qsizetype longestCharacter = 6;  // an escape with four digits
    reserve(longestCharacter);
    if (isPlain(*unit)) {
      *m_position++ = static_cast<char>(*unit);
    } else if (*unit < 0x80 && *unit != 0x7f) {
      appendEscaped(*unit);
    } else if (!QChar::isSurrogate(*unit)) {
      appendUtf8(*unit);
    } else if (QChar::isHighSurrogate(*unit) && unit + 1 != end && QChar::isLowSurrogate(unit[1])) {
      appendUtf8(QChar::surrogateToUcs4(unit[0], unit[1]));
      ++unit;
    } else {
      appendUtf8(QChar::ReplacementCharacter);
    }
  }
  append('"');
}

void JsonWriter::appendEscaped(char16_t unit) {
  *m_position++ = '\\';
  constexpr QByteArrayView meanings = "\"\\/\b\f\n\r\t";
  constexpr QByteArrayView letters = "\"\\/bfnrt";
  const qsizetype index = meanings.indexOf(static_cast<char>(unit));
  if (index >= 0) {
    *m_position++ = letters[index];
    return;
  }
  append("u00");
  append(lowerCaseDigits[unit >> 4]);
  append(lowerCaseDigits[unit & 0xf]);
}

void JsonWriter::appendUtf8(char32_t codePoint) {
  const auto put = [this](char32_t byte) { *m_position++ = static_cast<char>(byte); };
  const auto putContinuation = [put](char32_t bits) { put(0x80 | (bits & 0x3f)); };
  if (codePoint < 0x80) {
    put(codePoint);
  } else if (codePoint < 0x800) {
    put(0xc0 | (codePoint >> 6));
    putContinuation(codePoint);
  } else if (codePoint < 0x10000) {
    put(0xe0 | (codePoint >> 12));
    putContinuation(codePoint >> 6);
    putContinuation(codePoint);
  } else {
    put(0xf0 | (codePoint >> 18));
    putContinuation(codePoint >> 12);
    putContinuation(codePoint >> 6);
    putContinuation(codePoint);
  }
}

void JsonWriter::writeUuid(const QUuid &uuid) {
  constexpr qsizetype length = 38;  // with the quotes
  reserve(length);
  const auto put = [this](quint64 value, int digits) {
    for (int shift = 4 * (digits - 1); shift >= 0; shift -= 4) {
      *m_position++ = upperCaseDigits[static_cast<qsizetype>((value >> shift) & 0xf)];
    }
  };
  *m_position++ = '"';
  put(uuid.data1, 8);
  *m_position++ = '-';
  put(uuid.data2, 4);
  *m_position++ = '-';
  put(uuid.data3, 4);
  *m_position++ = '-';
  const auto tail = qFromBigEndian<quint64>(&uuid.data4[0]);
  put(tail >> 48, 4);
  *m_position++ = '-';
  put(tail, 12);
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
  append(value ? QByteArrayView("true") : QByteArrayView("false"));
}

QByteArray JsonWriter::takeText() {
  m_text.resize(m_position - m_text.constData());
  return std::move(m_text);
}

void JsonWriter::append(char character) {
  reserve(1);
  *m_position++ = character;
}

void JsonWriter::append(QByteArrayView bytes) {
  reserve(bytes.size());
  std::memcpy(m_position, bytes.data(), static_cast<std::size_t>(bytes.size()));
  m_position += bytes.size();
}

void JsonWriter::reserve(qsizetype count) {
  if (m_end - m_position >= count) {
    return;
  }
  const qsizetype length = m_position - m_text.constData();
  m_text.resize(std::max(2 * m_text.size(), length + count));
  m_position = m_text.data() + length;
  m_end = m_text.data() + m_text.size();
}

}  // namespace lanternix
