#include "Services/JsonReader.h"

#include "Services/JsonNumber.h"

#include <QtCore/QStringDecoder>
#include <QtCore/QUuid>

namespace lanternix {

using namespace Qt::StringLiterals;

JsonReader::JsonReader(QByteArrayView bytes)
    : m_begin(bytes.begin()), m_position(m_begin), m_end(bytes.end()), m_value(m_begin) {
  if (bytes.startsWith("\xef\xbb\xbf")) {
    m_position += 3;  // some editors put a byte order mark in front
  }
}

bool JsonReader::beginObject() {
  return beginContainer('{', true, "an object is expected");
}

bool JsonReader::beginArray() {
  return beginContainer('[', false, "a list is expected");
}

bool JsonReader::beginContainer(char bracket, bool isObject, const char *error) {
  skipWhiteSpace();
  if (hasFailed() || m_position == m_end || *m_position != bracket) {
    return fail(error);
  }
  if (m_depth == nestingLimit) {
    return fail("lists and objects stand too deep inside each other");
  }
  ++m_position;
  m_isObject[m_depth] = isObject;
  ++m_depth;
  m_isFirstEntry = true;
  return true;
}

bool JsonReader::endContainer() {
  ++m_position;
  --m_depth;
  m_isFirstEntry = false;
  return false;
}

bool JsonReader::nextEntry(char bracket) {
  skipWhiteSpace();
  if (hasFailed()) {
    return false;
  }
  if (m_position != m_end && *m_position == bracket) {
    return endContainer();
  }
  if (!m_isFirstEntry) {
    if (m_position == m_end || *m_position != ',') {
      return fail("a comma or the closing bracket is expected");
    }
    ++m_position;
  }
  m_isFirstEntry = false;
  return true;
}

bool JsonReader::nextMember(QByteArrayView &key) {
  if (!nextEntry('}') || !readUtf8(key)) {
    return false;
  }
  skipWhiteSpace();
  if (m_position == m_end || *m_position != ':') {
    return fail("a colon is expected");
  }
  ++m_position;
  return true;
}

bool JsonReader::nextElement() {
  return nextEntry(']');
}

bool JsonReader::readString(QString &value) {
  QByteArrayView utf8;
  if (!readUtf8(utf8)) {
    return false;
  }
  if (m_string.isAscii()) {
    value = QString::fromLatin1(utf8);
  } else {
    // QString::fromUtf8() would take U+FEFF at the beginning for a byte order mark and drop it.
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::ConvertInitialBom);
    value = decoder(utf8);
  }
  return true;
}

bool JsonReader::readUtf8(QByteArrayView &value) {
  skipWhiteSpace();
  if (hasFailed() || m_position == m_end || *m_position != '"') {
    return fail("a string is expected");
  }
  const char *const next = m_string.read(m_position + 1, m_end);
  if (next == nullptr) {
    return failAt(m_string.errorPosition(), m_string.error());
  }
  m_position = next;
  value = m_string.content();
  return true;
}

bool JsonReader::readNumber(QByteArrayView &number, const char *error) {
  skipWhiteSpace();
  if (hasFailed()) {
    return false;
  }
  number = leadingJsonNumber(QByteArrayView(m_position, m_end));
  if (number.isEmpty()) {
    return fail(error);
  }
  m_position += number.size();
  return true;
}

bool JsonReader::readReal(double &value) {
  QByteArrayView number;
  if (!readNumber(number, "a number is expected")) {
    return false;
  }
  const std::optional<double> real = realFromJsonNumber(number);
  value = real.value_or(value);
  return real.has_value() || fail("a number is beyond the range of doubles");
}

bool JsonReader::readInteger(qint64 &value) {
  QByteArrayView number;
  if (!readNumber(number, "an integer is expected")) {
    return false;
  }
  const std::optional<qint64> integer = integerFromJsonNumber(number);
  value = integer.value_or(value);
  return integer.has_value() || fail("a number is no integer of 64 bits");
}

bool JsonReader::readBoolean(bool &value) {
  if (skipLiteral("true")) {
    value = true;
    return true;
  }
  if (skipLiteral("false")) {
    value = false;
    return true;
  }
  return fail("true or false is expected");
}

bool JsonReader::readUuid(QUuid &value) {
  QByteArrayView text;
  if (!readUtf8(text)) {
    return false;
  }
  // QUuid takes braces, and more, but not within 36 characters. A text that is none gives the null
  // value, which has a text of its own.
  constexpr qsizetype length = 36;
  constexpr QByteArrayView null = "00000000-0000-0000-0000-000000000000";
  value = text.size() == length ? QUuid::fromString(QLatin1StringView(text)) : QUuid();
  return !value.isNull() || text == null || fail("a UUID of 36 characters is expected");
}

bool JsonReader::skipNull() {
  return skipLiteral("null");
}

bool JsonReader::skipLiteral(QByteArrayView literal) {
  skipWhiteSpace();
  if (hasFailed() || !QByteArrayView(m_position, m_end).startsWith(literal)) {
    return false;
  }
  m_position += literal.size();
  return true;
}

bool JsonReader::skipScalar() {
  if (skipNull() || skipLiteral("true") || skipLiteral("false")) {
    return true;
  }
  QByteArrayView ignored;
  if (m_position != m_end && *m_position == '"') {
    return readUtf8(ignored);
  }
  return readNumber(ignored, "a value is expected");
}

bool JsonReader::skipValue() {
  const std::size_t depth = m_depth;
  do {
    skipWhiteSpace();
    const char next = m_position == m_end ? '\0' : *m_position;
    const bool isRead = next == '{' ? beginObject() : next == '[' ? beginArray() : skipScalar();
    if (!isRead) {
      return false;
    }
    // On to the next value inside; where there is none, out of the container it was looked for in.
    QByteArrayView ignored;
    while (m_depth > depth && !(m_isObject[m_depth - 1] ? nextMember(ignored) : nextElement())) {
      if (hasFailed()) {
        return false;
      }
    }
  } while (m_depth > depth);
  return true;
}

bool JsonReader::readEnd() {
  skipWhiteSpace();
  if (hasFailed()) {
    return false;
  }
  return m_position == m_end || fail("something follows the end of the document");
}

void JsonReader::skipWhiteSpace() {
  while (m_position != m_end && (*m_position == ' ' || *m_position == '\n' || *m_position == '\r' ||
                                 *m_position == '\t')) {
    ++m_position;
  }
  m_value = m_position;
}

bool JsonReader::fail(const char *error) {
  return failAt(m_value, error);
}

bool JsonReader::failForMissing(std::string_view key) {
  if (!hasFailed()) {
    m_missingKey = key;
  }
  return fail("an object lacks the key \"%1\" and ends");
}

bool JsonReader::failAt(const char *position, const char *error) {
  if (!hasFailed()) {
    m_error = error;
    m_errorPosition = position;
  }
  return false;
}

QString JsonReader::error() const {
  if (!hasFailed()) {
    return {};
  }
  QString error = QString::fromLatin1(m_error);
  if (!m_missingKey.empty()) {
    error = error.arg(
        QString::fromUtf8(m_missingKey.data(), static_cast<qsizetype>(m_missingKey.size())));
  }
  return error + u" at byte "_s + QString::number(m_errorPosition - m_begin);
}

}  // namespace lanternix
