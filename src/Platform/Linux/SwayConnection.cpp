#include "Platform/Linux/SwayConnection.h"

#include <QtCore/QByteArrayView>
#include <QtCore/QFile>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <poll.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>
#include <utility>

namespace lanternix {
namespace {

using Clock = std::chrono::steady_clock;

constexpr auto patience = std::chrono::seconds(1);
constexpr qsizetype largestPayload = 1 << 24;

/// What precedes every payload: this, then its size and its kind in the machine's order of bytes.
constexpr QByteArrayView magic = "i3-ipc";
constexpr qsizetype numberLength = sizeof(quint32);
constexpr qsizetype headerLength = magic.size() + 2 * numberLength;

void appendNumber(QByteArray &bytes, quint32 number) {
  bytes.append(reinterpret_cast<const char *>(&number), numberLength);
}

quint32 numberAt(const QByteArray &bytes, qsizetype position) {
  quint32 number = 0;
  std::memcpy(&number, bytes.constData() + position, sizeof number);
  return number;
}

bool isForLater(ssize_t result) {
  return result < 0 && (errno == EAGAIN || errno == EINTR);
}

}  // namespace

SwayConnection::SwayConnection(const QString &path) {
  const QByteArray name = QFile::encodeName(path);
  sockaddr_un address{};
  address.sun_family = AF_UNIX;
  if (name.isEmpty() || static_cast<std::size_t>(name.size()) >= sizeof address.sun_path) {
    return;
  }
  std::ranges::copy(name, address.sun_path);
  m_socket = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
  if (isOpen() &&
      connect(m_socket, reinterpret_cast<const sockaddr *>(&address), sizeof address) != 0) {
    close();
  }
}

SwayConnection::~SwayConnection() {
  close();
}

void SwayConnection::close() {
  if (isOpen()) {
    ::close(std::exchange(m_socket, -1));
  }
}

bool SwayConnection::waitFor(short event, Clock::time_point deadline) const {
  const auto left = std::chrono::ceil<std::chrono::milliseconds>(deadline - Clock::now());
  pollfd watched{m_socket, event, 0};
  return left.count() > 0 &&
         (poll(&watched, 1, static_cast<int>(left.count())) > 0 || errno == EINTR);
}

bool SwayConnection::send(quint32 kind, const QByteArray &payload) {
  QByteArray bytes = magic.toByteArray();
  appendNumber(bytes, static_cast<quint32>(payload.size()));
  appendNumber(bytes, kind);
  bytes += payload;
  const auto deadline = Clock::now() + patience;
  while (isOpen() && !bytes.isEmpty()) {
    const ssize_t sent =
        ::send(m_socket, bytes.constData(), static_cast<std::size_t>(bytes.size()), MSG_NOSIGNAL);
    if (sent >= 0) {
      bytes.remove(0, sent);
    } else if (!isForLater(sent) || !waitFor(POLLOUT, deadline)) {
      close();
    }
  }
  return isOpen();
}

std::optional<SwayConnection::Message> SwayConnection::ask(quint32 kind,
                                                           const QByteArray &payload) {
  if (!send(kind, payload)) {
    return std::nullopt;
  }
  const auto deadline = Clock::now() + patience;
  while (isOpen()) {
    if (auto answer = takeMessage()) {
      return answer;
    }
    if (isOpen() && !waitFor(POLLIN, deadline)) {
      close();
    }
    readAvailable();
  }
  return std::nullopt;
}

void SwayConnection::readAvailable() {
  std::array<char, 4096> part{};
  while (isOpen()) {
    const ssize_t size = recv(m_socket, part.data(), part.size(), 0);
    if (size > 0) {
      m_received.append(part.data(), size);
    } else if (isForLater(size)) {
      return;
    } else {
      close();
    }
  }
}

std::optional<SwayConnection::Message> SwayConnection::takeMessage() {
  if (m_received.size() < headerLength) {
    return std::nullopt;
  }
  const qsizetype size = numberAt(m_received, magic.size());
  if (!m_received.startsWith(magic) || size > largestPayload) {
    m_received.clear();
    close();
    return std::nullopt;
  }
  if (m_received.size() < headerLength + size) {
    return std::nullopt;
  }
  Message message{numberAt(m_received, magic.size() + numberLength),
                  m_received.mid(headerLength, size)};
  m_received.remove(0, headerLength + size);
  return message;
}

}  // namespace lanternix
