#include "PictureWatch.h"

#include "support/HarnessError.h"

#include <algorithm>
#include <cstring>
#include <poll.h>

namespace lanternix {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr auto silence = 150ms;
constexpr auto patience = 5000ms;

/// A window without content is of one colour: the background, or what lay beneath it.
bool hasContent(const std::vector<quint32> &pixels) {
  return std::adjacent_find(pixels.begin(), pixels.end(), std::not_equal_to<>()) != pixels.end();
}

}  // namespace

PictureWatch::PictureWatch(const QString &displayName, xcb_window_t window)
    : m_connection(displayName),
      m_window(window),
      m_damageEvent(0),
      m_damage(xcb_generate_id(m_connection)),
      m_context(xcb_generate_id(m_connection)) {
  const xcb_query_extension_reply_t *extension =
      xcb_get_extension_data(m_connection, &xcb_damage_id);
  const XReply<xcb_damage_query_version_reply_t> version(xcb_damage_query_version_reply(
      m_connection, xcb_damage_query_version(m_connection, 1, 1), nullptr));
  if (extension == nullptr || extension->present == 0 || !version) {
    throw HarnessError(u"the display has no Damage extension"_s);
  }
  m_damageEvent = static_cast<quint8>(extension->first_event + XCB_DAMAGE_NOTIFY);

  const quint32 events = XCB_EVENT_MASK_STRUCTURE_NOTIFY;
  xcb_change_window_attributes(m_connection, m_window, XCB_CW_EVENT_MASK, &events);
  xcb_damage_create(m_connection, m_damage, m_window, XCB_DAMAGE_REPORT_LEVEL_RAW_RECTANGLES);
  const quint32 includeInferiors = XCB_SUBWINDOW_MODE_INCLUDE_INFERIORS;
  xcb_create_gc(m_connection, m_context, m_window, XCB_GC_SUBWINDOW_MODE, &includeInferiors);
  const XReply<xcb_get_geometry_reply_t> geometry(
      xcb_get_geometry_reply(m_connection, xcb_get_geometry(m_connection, m_window), nullptr));
  if (!geometry) {
    throw HarnessError(u"the window to watch has gone"_s);
  }
  m_depth = geometry->depth;
}

PictureWatch::~PictureWatch() {
  xcb_damage_destroy(m_connection, m_damage);
}

PictureWatch::Times PictureWatch::timesAfter(const std::function<void()> &event) {
  const Clock::time_point start = Clock::now();
  event();
  Times times;
  for (const Drawing &drawing : drawingsUntilQuiet()) {
    const std::vector<quint32> pixels = fetch(drawing);
    bool changed = false;
    for (int row = 0; row < drawing.area.height(); ++row) {
      const auto from = pixels.begin() + row * drawing.area.width();
      const auto to =
          m_picture.begin() + (drawing.area.y() + row) * m_size.width() + drawing.area.x();
      changed = changed || !std::equal(from, from + drawing.area.width(), to);
      std::copy(from, from + drawing.area.width(), to);
    }
    const Duration sinceStart = drawing.time - start;
    constexpr Duration withinAFrame{4};
    if (times.frames.empty() || sinceStart - times.frames.back() > withinAFrame) {
      times.frames.push_back(sinceStart);
    }
    if (!times.firstPicture.has_value() && hasContent(m_picture)) {
      times.firstPicture = sinceStart;
    }
    if (changed) {
      times.settled = sinceStart;
    }
  }
  return times;
}

std::optional<PictureWatch::Duration> PictureWatch::Times::longestGap(Duration within) const {
  std::optional<Duration> longest;
  for (std::size_t frame = 1; frame < frames.size() && frames[frame] <= within; ++frame) {
    longest = std::max(longest.value_or(Duration{0}), frames[frame] - frames[frame - 1]);
  }
  return longest;
}

std::optional<PictureWatch::Duration> PictureWatch::timeToUnmapped(
    const std::function<void()> &event) {
  const Clock::time_point start = Clock::now();
  event();
  while (const auto next = nextEvent(patience)) {
    if ((next->response_type & 0x7f) == XCB_UNMAP_NOTIFY) {
      std::fill(m_picture.begin(), m_picture.end(), 0);
      return Clock::now() - start;
    }
  }
  return std::nullopt;
}

void PictureWatch::waitForQuiet() {
  while (nextEvent(silence)) {
  }
}

XReply<xcb_generic_event_t> PictureWatch::nextEvent(std::chrono::milliseconds timeout) {
  const Clock::time_point deadline = Clock::now() + timeout;
  xcb_flush(m_connection);
  XReply<xcb_generic_event_t> event(xcb_poll_for_event(m_connection));
  while (!event) {
    const auto left =
        std::chrono::duration_cast<std::chrono::milliseconds>(deadline - Clock::now());
    if (left.count() < 0) {
      return nullptr;
    }
    pollfd descriptor{xcb_get_file_descriptor(m_connection), POLLIN, 0};
    ::poll(&descriptor, 1, static_cast<int>(left.count()) + 1);
    event.reset(xcb_poll_for_event(m_connection));
  }
  return event;
}

std::vector<PictureWatch::Drawing> PictureWatch::drawingsUntilQuiet() {
  std::vector<Drawing> drawings;
  // The first drawing may be long in coming, the silence counts from then on.
  while (const auto event = nextEvent(drawings.empty() ? patience : silence)) {
    const Clock::time_point time = Clock::now();
    if ((event->response_type & 0x7f) == m_damageEvent) {
      const auto *damage = reinterpret_cast<const xcb_damage_notify_event_t *>(event.get());
      drawings.push_back(copyOf(*damage, time));
    }
  }
  return drawings;
}

PictureWatch::Drawing PictureWatch::copyOf(const xcb_damage_notify_event_t &damage,
                                           Clock::time_point time) {
  const QSize size(damage.geometry.width, damage.geometry.height);
  if (size != m_size) {
    m_size = size;
    m_picture.assign(static_cast<size_t>(size.width()) * static_cast<size_t>(size.height()), 0);
  }
  const QRect area = QRect(damage.area.x, damage.area.y, damage.area.width, damage.area.height) &
                     QRect(QPoint(), m_size);
  const xcb_pixmap_t copy = xcb_generate_id(m_connection);
  xcb_create_pixmap(m_connection, m_depth, copy, m_window, static_cast<quint16>(area.width()),
                    static_cast<quint16>(area.height()));
  xcb_copy_area(m_connection, m_window, copy, m_context, static_cast<qint16>(area.x()),
                static_cast<qint16>(area.y()), 0, 0, static_cast<quint16>(area.width()),
                static_cast<quint16>(area.height()));
  xcb_flush(m_connection);
  return {time, area, copy};
}

std::vector<quint32> PictureWatch::fetch(const Drawing &drawing) {
  const auto count =
      static_cast<size_t>(drawing.area.width()) * static_cast<size_t>(drawing.area.height());
  std::vector<quint32> pixels(count);
  const XReply<xcb_get_image_reply_t> image(
      xcb_get_image_reply(m_connection,
                          xcb_get_image(m_connection, XCB_IMAGE_FORMAT_Z_PIXMAP, drawing.copy, 0, 0,
                                        static_cast<quint16>(drawing.area.width()),
                                        static_cast<quint16>(drawing.area.height()), ~0U),
                          nullptr));
  xcb_free_pixmap(m_connection, drawing.copy);
  if (!image) {
    throw HarnessError(u"the server did not hand out a copy of the window"_s);
  }
  std::memcpy(pixels.data(), xcb_get_image_data(image.get()), count * sizeof(quint32));
  return pixels;
}

}  // namespace lanternix
