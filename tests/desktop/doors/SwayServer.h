#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QList>
#include <QtCore/QStringList>
#include <QtCore/QTemporaryDir>
#include <QtCore/QThread>
#include <QtNetwork/QLocalServer>

#include <functional>

class QLocalSocket;

namespace lanternix {

/// The socket of a compositor that speaks as sway does, answered on a thread of its own, because
/// those who ask there wait for the answer.
class SwayServer {
 public:
  enum class Answer { success, refusal, nonsense, hangUp };

  SwayServer();
  ~SwayServer();
  Q_DISABLE_COPY_MOVE(SwayServer)

  QString path() const { return m_directory.filePath(QStringLiteral("sway.sock")); }

  /// How commands are answered from now on.
  void answerCommandsWith(Answer answer);
  /// The commands so far, in their order.
  QStringList commands() const;
  /// Tells every subscriber, in pieces of \p pieceSize bytes.
  void tell(quint32 kind, const QByteArray &payload, qsizetype pieceSize = 1 << 16);
  /// A binding of this command was used.
  void tellOfUse(const QByteArray &command, qsizetype pieceSize = 1 << 16);
  /// Sends bytes that are no message to every subscriber.
  void tellNonsense();
  int subscribers() const;
  /// Closes every connection and takes no more.
  void stop();

 private:
  void inThread(const std::function<void()> &action) const;
  void take(QLocalSocket *client);
  void answer(QLocalSocket &client, quint32 kind, const QByteArray &payload);

  QTemporaryDir m_directory;
  mutable QThread m_thread;
  QLocalServer *m_server = nullptr;  // lives on the thread
  Answer m_answer = Answer::success;
  QStringList m_commands;
  QList<QLocalSocket *> m_subscribers;
};

}  // namespace lanternix
