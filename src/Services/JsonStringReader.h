#pragma once

#include <QtCore/QByteArrayView>

#include <string>

namespace lanternix {

/// Reads the strings of a JSON text, one after the other: resolves escapes and makes sure that what
/// comes out is UTF-8.
class JsonStringReader {
 public:
  /// Reads the string whose opening quote stands before \p position. Returns what follows its
  /// closing quote, or null when the string is broken.
  const char *read(const char *position, const char *end);

  /// The text, UTF-8. Points into what was read where no escape had to be resolved; either way it
  /// holds until the next read().
  QByteArrayView content() const { return m_content; }
  bool isAscii() const { return (m_seen & 0x8080'8080'8080'8080U) == 0; }

  /// What made the last read() fail, and where.
  const char *error() const { return m_error; }
  const char *errorPosition() const { return m_errorPosition; }

 private:
  bool readEscapedText(const char *start);
  void scanPlainText();
  bool appendEscape();
  bool appendUnicodeEscape();
  bool readCodeUnit(char32_t &unit);
  bool fail(const char *position, const char *error);

  const char *m_position = nullptr;
  const char *m_end = nullptr;
  QByteArrayView m_content;
  std::string m_resolved;
  /// Every byte of the text, laid over each other eight abreast.
  quint64 m_seen = 0;
  const char *m_error = nullptr;
  const char *m_errorPosition = nullptr;
};

}  // namespace lanternix
