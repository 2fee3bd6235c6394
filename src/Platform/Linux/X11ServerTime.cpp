#include "Platform/Linux/X11ServerTime.h"

#include "Platform/Linux/X11Server.h"

#include <algorithm>
#include <cstring>
#include <string_view>

namespace lanternix {
namespace {

/// XCB_NONE where there is no counter of that name. xcb's own iterator cannot be used: it takes the
/// fixed part of an entry for two bytes longer than it is, which the padding hides only behind
/// names of some lengths.
xcb_sync_counter_t counterNamed(std::string_view wanted,
                                const xcb_sync_list_system_counters_reply_t &reply) {
  constexpr std::size_t unit = 4;
  constexpr std::size_t fixedPart = 14;  // the counter, its resolution, the length of its name
  std::string_view rest(reinterpret_cast<const char *>(&reply + 1), reply.length * unit);
  for (quint32 i = 0; i < reply.counters_len && rest.size() >= fixedPart; ++i) {
    xcb_sync_counter_t counter = XCB_NONE;
    quint16 nameLength = 0;
    std::memcpy(&counter, rest.data(), sizeof counter);
    std::memcpy(&nameLength, rest.data() + fixedPart - sizeof nameLength, sizeof nameLength);
    if (rest.substr(fixedPart, nameLength) == wanted) {
      return counter;
    }
    const std::size_t size = (fixedPart + nameLength + unit - 1) / unit * unit;
    rest.remove_prefix(std::min(size, rest.size()));
  }
  return XCB_NONE;
}

}  // namespace

X11ServerTime::X11ServerTime(xcb_connection_t *connection) : m_connection(connection) {
  const auto *extension = xcb_get_extension_data(connection, &xcb_sync_id);
  if (extension == nullptr || extension->present == 0) {
    return;
  }
  xcb_discard_reply(
      connection,
      xcb_sync_initialize(connection, XCB_SYNC_MAJOR_VERSION, XCB_SYNC_MINOR_VERSION).sequence);
  const X11Reply<xcb_sync_list_system_counters_reply_t> reply(xcb_sync_list_system_counters_reply(
      connection, xcb_sync_list_system_counters(connection), nullptr));
  if (reply) {
    m_counter = counterNamed("SERVERTIME", *reply);
  }
}

quint32 X11ServerTime::now() const {
  if (m_counter == XCB_NONE) {
    return 0;
  }
  const X11Reply<xcb_sync_query_counter_reply_t> reply(xcb_sync_query_counter_reply(
      m_connection, xcb_sync_query_counter(m_connection, m_counter), nullptr));
  return reply ? reply->counter_value.lo : 0;  // events have room for the lower half only
}

}  // namespace lanternix
