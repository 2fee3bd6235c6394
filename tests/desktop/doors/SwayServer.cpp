#include "desktop/doors/SwayServer.h"

#include <QtNetwork/QLocalSocket>

#include <cstring>

namespace lanternix {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype headerLength = 14;
constexpr quint32 subscribe = 2;
constexpr quint32 bindingEvent = 0x80000005;

quint32 numberAt(const QByteArray &bytes, qsizetype position) {
  quint32 number = 0;
  std::memcpy(&number, bytes.constData() + position, sizeof number);
  return number;
}

QByteArray message(quint32 kind, const QByteArray &payload) {
  const auto size = static_cast<quint32>(payload.size());
  return "i3-ipc" + QByteArray(reinterpret_cast<const char *>(&size), sizeof size) +
         QByteArray(reinterpret_cast<const char *>(&kind), sizeof kind) + payload;
}

}  // namespace

SwayServer::SwayServer() {
  m_thread.start();
  m_server = new QLocalServer;  // deleted by the end of the thread
  m_server->moveToThread(&m_thread);
  QObject::connect(&m_thread, &QThread::finished, m_server, &QObject::deleteLater);
  QObject::connect(m_server, &QLocalServer::newConnection, m_server, [this] {
    while (QLocalSocket *client = m_server->nextPendingConnection()) {
      take(client);
    }
  });
  inThread([this] { m_server->listen(path()); });
}

SwayServer::~SwayServer() {
  m_thread.quit();
  m_thread.wait();
}

void SwayServer::inThread(const std::function<void()> &action) const {
  QMetaObject::invokeMethod(m_server, action, Qt::BlockingQueuedConnection);
}

void SwayServer::answerCommandsWith(Answer answer) {
  inThread([&] { m_answer = answer; });
}

QStringList SwayServer::commands() const {
  QStringList commands;
  inThread([&] { commands = m_commands; });
  return commands;
}

int SwayServer::subscribers() const {
  qsizetype count = 0;
  inThread([&] { count = m_subscribers.size(); });
  return static_cast<int>(count);
}

void SwayServer::tell(quint32 kind, const QByteArray &payload, qsizetype pieceSize) {
  inThread([&] {
    const QByteArray bytes = message(kind, payload);
    for (QLocalSocket *subscriber : m_subscribers) {
      for (qsizetype sent = 0; sent < bytes.size(); sent += pieceSize) {
        subscriber->write(bytes.mid(sent, pieceSize));
        subscriber->flush();
      }
    }
  });
}

void SwayServer::tellOfUse(const QByteArray &command, qsizetype pieceSize) {
  tell(bindingEvent, R"({"change":"run","binding":{"command":")" + command + R"("}})", pieceSize);
}

void SwayServer::tellNonsense() {
  inThread([this] {
    for (QLocalSocket *subscriber : m_subscribers) {
      subscriber->write(QByteArray(64, '\xff'));
      subscriber->flush();
    }
  });
}

void SwayServer::stop() {
  inThread([this] {
    m_server->close();
    const auto clients = m_server->findChildren<QLocalSocket *>();
    for (QLocalSocket *client : clients) {
      client->abort();
    }
  });
}

void SwayServer::take(QLocalSocket *client) {
  QObject::connect(client, &QLocalSocket::disconnected, m_server, [this, client] {
    m_subscribers.removeAll(client);
    client->deleteLater();
  });
  QObject::connect(client, &QLocalSocket::readyRead, m_server, [this, client] {
    while (client->bytesAvailable() >= headerLength) {
      const QByteArray header = client->peek(headerLength);
      const qsizetype size = numberAt(header, 6);
      if (client->bytesAvailable() < headerLength + size) {
        return;
      }
      client->read(headerLength);
      answer(*client, numberAt(header, 10), client->read(size));
    }
  });
}

void SwayServer::answer(QLocalSocket &client, quint32 kind, const QByteArray &payload) {
  if (kind == subscribe) {
    m_subscribers.append(&client);
    client.write(message(kind, R"({"success":true})"));
    return;
  }
  m_commands.append(QString::fromUtf8(payload));
  switch (m_answer) {
    case Answer::success:
      client.write(message(kind, R"([{"success":true}])"));
      break;
    case Answer::refusal:
      client.write(message(kind, R"([{"success":false,"parse_error":true,"error":"No"}])"));
      break;
    case Answer::nonsense:
      client.write(QByteArray(64, '\xff'));
      break;
    case Answer::hangUp:
      client.abort();
      break;
  }
}

}  // namespace lanternix
