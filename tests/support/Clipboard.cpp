#include "support/Clipboard.h"

#include "support/WaitUntil.h"

namespace lanternix {

using namespace Qt::StringLiterals;

namespace {

constexpr auto place = "PASTED_TEXT";

}  // namespace

Clipboard::Clipboard(const QString &displayName)
    : m_connection(displayName), m_window(xcb_generate_id(m_connection)) {
  xcb_create_window(m_connection, XCB_COPY_FROM_PARENT, m_window, m_connection.root(), 0, 0, 1, 1,
                    0, XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, 0, nullptr);
}

std::optional<QString> Clipboard::text() {
  xcb_delete_property(m_connection, m_window, m_connection.atom(place));
  xcb_convert_selection(m_connection, m_window, m_connection.atom("CLIPBOARD"),
                        m_connection.atom("UTF8_STRING"), m_connection.atom(place),
                        XCB_CURRENT_TIME);
  xcb_flush(m_connection);
  // Without an owner the server itself refuses.
  bool isGiven = false;
  require(u"the clipboard's answer"_s, [&] {
    const XReply<xcb_generic_event_t> event(xcb_poll_for_event(m_connection));
    if (!event || (event->response_type & ~0x80U) != XCB_SELECTION_NOTIFY) {
      return false;
    }
    const auto *answer = reinterpret_cast<const xcb_selection_notify_event_t *>(event.get());
    isGiven = answer->property != XCB_ATOM_NONE;
    return true;
  });
  return isGiven ? std::optional(QString::fromUtf8(m_connection.property(m_window, place)))
                 : std::nullopt;
}

}  // namespace lanternix
