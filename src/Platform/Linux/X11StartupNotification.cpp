#include "Platform/Linux/X11StartupNotification.h"

#include <algorithm>
#include <utility>

namespace lanternix {
namespace {

using namespace Qt::StringLiterals;

constexpr auto timeMark = "_TIME"_L1;
constexpr quint8 bitsPerItem = 8;

/// \p text as the value of a key in a message.
QByteArray quoted(const QString &text) {
  QByteArray value = text.toUtf8();
  value.replace('\\', "\\\\").replace('"', "\\\"");
  return '"' + value + '"';
}

}  // namespace

quint32 X11StartupNotification::timeOf(const QString &id) {
  const qsizetype mark = id.lastIndexOf(timeMark);
  return mark < 0 ? 0 : id.mid(mark + timeMark.size()).toUInt();
}

void X11StartupNotification::begin(const QString &id) {
  end();
  m_id = id;
}

void X11StartupNotification::end() {
  const QString id = std::exchange(m_id, QString());
  if (!id.isEmpty()) {
    broadcast("remove: ID=" + quoted(id));
  }
}

/// A text goes out in pieces, its end marked by a zero; the pieces of one text are known by the
/// window that they name, which serves for nothing else.
void X11StartupNotification::broadcast(const QByteArray &message) {
  xcb_connection_t *connection = m_server.connection();
  const xcb_window_t sender = xcb_generate_id(connection);
  xcb_create_window(connection, XCB_COPY_FROM_PARENT, sender, m_server.root(), -1, -1, 1, 1, 0,
                    XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, 0, nullptr);
  const QByteArray text = message + '\0';
  xcb_client_message_event_t event{};
  event.response_type = XCB_CLIENT_MESSAGE;
  event.format = bitsPerItem;
  event.window = sender;
  event.type = m_atoms[X11Atoms::netStartupInfoBegin];
  constexpr qsizetype pieceSize = sizeof event.data.data8;
  for (qsizetype start = 0; start < text.size(); start += pieceSize) {
    std::ranges::fill(event.data.data8, quint8{0});
    std::ranges::copy(text.mid(start, pieceSize), event.data.data8);
    xcb_send_event(connection, 0, m_server.root(), XCB_EVENT_MASK_PROPERTY_CHANGE,
                   reinterpret_cast<const char *>(&event));
    event.type = m_atoms[X11Atoms::netStartupInfo];
  }
  xcb_destroy_window(connection, sender);
  xcb_flush(connection);
}

}  // namespace lanternix
