#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>

#include <chrono>
#include <optional>

namespace lanternix {

/// One connection to the socket by which sway takes commands and tells of events.
class SwayConnection {
 public:
  /// Kinds of messages, and of answers to them.
  static constexpr quint32 runCommand = 0;
  static constexpr quint32 subscribe = 2;
  /// Kinds of events.
  static constexpr quint32 workspaceEvent = 0x80000000;
  static constexpr quint32 bindingEvent = 0x80000005;

  struct Message {
    quint32 kind = 0;
    QByteArray payload;
  };

  /// Connects to the socket at \p path. See isOpen() for the outcome.
  explicit SwayConnection(const QString &path);
  ~SwayConnection();
  Q_DISABLE_COPY_MOVE(SwayConnection)

  /// False once sway is gone or talks nonsense.
  bool isOpen() const { return m_socket >= 0; }
  /// For watching whether there is something to read; only while open.
  int descriptor() const { return m_socket; }

  /// Sends a message and waits for its answer. None when there is none in time; the connection is
  /// closed then. Only without a subscription.
  std::optional<Message> ask(quint32 kind, const QByteArray &payload);

  /// Reads what has arrived, without waiting.
  void readAvailable();
  /// The first message that has been read in full; none when there is none.
  std::optional<Message> takeMessage();

 private:
  bool send(quint32 kind, const QByteArray &payload);
  bool waitFor(short event, std::chrono::steady_clock::time_point deadline) const;
  void close();

  int m_socket = -1;
  QByteArray m_received;
};

}  // namespace lanternix
