#pragma once

#include "Services/JsonStringReader.h"

#include <QtCore/QByteArray>
#include <QtCore/QString>

#include <bitset>
#include <string_view>

class QUuid;

namespace lanternix {

/// Reads one JSON text (RFC 8259, UTF-8, a byte order mark tolerated) from front to back, straight
/// into the caller's values: no tree is built, and nothing recurses however deep the text nests.
///
/// Every reading operation returns false when it fails. The first failure is final: from then on
/// everything fails, and error() says what was wrong and at which byte. Members and elements are
/// read in loops whose end is either the closing bracket or a failure:
///
///     if (!reader.beginObject()) ...
///     while (reader.nextMember(key)) { read or skip one value }
///     if (reader.hasFailed()) ...
class JsonReader {
 public:
  /// How deep arrays and objects may stand inside each other. Real documents need three levels.
  static constexpr std::size_t nestingLimit = 512;

  /// \p bytes must outlive the reader.
  explicit JsonReader(QByteArrayView bytes);

  bool beginObject();
  /// Steps to the next member of the object entered last and gives its key (valid until the next
  /// call). False at the closing bracket, which is consumed.
  bool nextMember(QByteArrayView &key);

  bool beginArray();
  /// Steps to the next element of the array entered last. False at the closing bracket, which is
  /// consumed.
  bool nextElement();

  bool readString(QString &value);
  /// A string's content as UTF-8, valid until the next call.
  bool readUtf8(QByteArrayView &value);
  /// Any finite number that a double can hold; minus zero keeps its sign.
  bool readReal(double &value);
  /// A number whose value is whole and fits 64 bits, however it is spelled.
  bool readInteger(qint64 &value);
  bool readBoolean(bool &value);
  /// A string of exactly 36 characters, 8-4-4-4-12 hexadecimal digits in either case.
  bool readUuid(QUuid &value);
  /// Consumes a null. False, and no failure, when something else comes next.
  bool skipNull();
  /// Checks and passes over a value of any kind.
  bool skipValue();
  /// Checks that only white space is left.
  bool readEnd();

  bool hasFailed() const { return m_error != nullptr; }
  /// Records a failure of the caller's: what was just read does not serve. Returns false.
  bool fail(const char *error);
  /// Records that the object just left lacks a member that it must have. Returns false.
  bool failForMissing(std::string_view key);
  /// What was wrong, such as "a string is expected at byte 17"; empty when nothing was.
  QString error() const;

 private:
  bool beginContainer(char bracket, bool isObject, const char *error);
  bool endContainer();
  bool nextEntry(char bracket);
  void skipWhiteSpace();
  bool skipLiteral(QByteArrayView literal);
  bool skipScalar();
  bool readNumber(QByteArrayView &number, const char *error);
  bool failAt(const char *position, const char *error);

  const char *m_begin;
  const char *m_position;
  const char *m_end;
  /// Start of the value being read: where a failure is reported.
  const char *m_value;

  /// By depth: an object rather than an array.
  std::bitset<nestingLimit> m_isObject;
  std::size_t m_depth = 0;
  /// The container entered last has had no entry yet, so that none may be followed by a comma.
  bool m_isFirstEntry = false;

  JsonStringReader m_string;
  const char *m_error = nullptr;
  std::string_view m_missingKey;
  const char *m_errorPosition = nullptr;
};

}  // namespace lanternix
