#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QStringView>

#include <string_view>

class QUuid;

namespace lanternix {

/// Writes one JSON text in the layout of the data document: two spaces of indent a level, a space
/// on either side of the colon, every slash escaped, an empty list or object with an empty line
/// inside, no line break at the end. Keys come out in the order in which they are written.
class JsonWriter {
 public:
  /// \p expectedSize saves growing the text bit by bit; a longer text is as good.
  explicit JsonWriter(qsizetype expectedSize);

  void beginObject() { beginContainer('{'); }
  void endObject() { endContainer('}'); }
  void beginArray() { beginContainer('['); }
  void endArray() { endContainer(']'); }

  /// Starts a member; its value follows. \p key is plain ASCII.
  void writeKey(std::string_view key);
  /// Starts an element; its value follows.
  void beginElement() { beginEntry(); }

  /// Control characters, quote, backslash and slash are escaped, all else is written as it is.
  /// Half a surrogate pair, for which there is no UTF-8, becomes U+FFFD.
  void writeString(QStringView text);
  /// Upper-case digits and hyphens, 36 characters.
  void writeUuid(const QUuid &uuid);
  /// See writeJsonNumber(). \p value is finite.
  void writeReal(double value);
  void writeInteger(qint64 value);
  void writeBoolean(bool value);

  /// The text; the writer is spent.
  QByteArray takeText();

 private:
  void beginContainer(char bracket);
  void endContainer(char bracket);
  void beginEntry();
  void startLine();
  void append(char character);
  void append(std::string_view bytes);
  /// Both want room for an escape, six bytes.
  const char16_t *putCharacter(const char16_t *unit, const char16_t *end);
  void putEscaped(char16_t unit);
  /// Makes sure that \p count more bytes fit.
  void reserve(qsizetype count) {
    if (m_end - m_position < count) {
      grow(count);
    }
  }
  void grow(qsizetype count);

  QByteArray m_text;
  char *m_position;
  char *m_end;
  qsizetype m_depth = 0;
  bool m_isFirstEntry = false;
};

}  // namespace lanternix
