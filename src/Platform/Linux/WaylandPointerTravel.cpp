#include "Platform/Linux/WaylandPointerTravel.h"

#include <QtGui/QGuiApplication>

#include <array>
#include <wayland-client.h>

namespace lanternix {
namespace {

// The protocol as the Wayland library wants it described. The library takes lists of types by
// pointers to what could change.

constexpr quint32 getRelativePointer = 1;  // of a manager: the new object, the wl_pointer
constexpr quint32 destroyRequest = 0;      // of both

std::array<const wl_interface *, 6> plain{};
const std::array<wl_message, 1> motionsRequests{{{"destroy", "", plain.data()}}};
const std::array<wl_message, 1> motionsEvents{{{"relative_motion", "uuffff", plain.data()}}};
const wl_interface motionsInterface{"zwp_relative_pointer_v1", 1,
                                    motionsRequests.size(),    motionsRequests.data(),
                                    motionsEvents.size(),      motionsEvents.data()};
std::array<const wl_interface *, 2> getTypes{&motionsInterface, &wl_pointer_interface};
const std::array<wl_message, 2> managerRequests{
    {{"destroy", "", plain.data()}, {"get_relative_pointer", "no", getTypes.data()}}};
const wl_interface managerInterface{"zwp_relative_pointer_manager_v1",
                                    1,
                                    managerRequests.size(),
                                    managerRequests.data(),
                                    0,
                                    nullptr};

struct MotionListener {
  void (*motion)(void *data, wl_proxy *motions, quint32 timeHigh, quint32 timeLow, wl_fixed_t x,
                 wl_fixed_t y, wl_fixed_t unacceleratedX, wl_fixed_t unacceleratedY);
};

void addMotion(void *data, wl_proxy * /*motions*/, quint32 /*timeHigh*/, quint32 /*timeLow*/,
               wl_fixed_t x, wl_fixed_t y, wl_fixed_t /*unacceleratedX*/,
               wl_fixed_t /*unacceleratedY*/) {
  *static_cast<QPointF *>(data) += QPointF(wl_fixed_to_double(x), wl_fixed_to_double(y));
}

const QNativeInterface::QWaylandApplication &wayland() {
  return *qGuiApp->nativeInterface<QNativeInterface::QWaylandApplication>();
}

}  // namespace

WaylandPointerTravel::WaylandPointerTravel() {
  wl_display *display = wayland().display();
  const std::unique_ptr<wl_event_queue, WaylandRelease> queue(wl_display_create_queue(display));
  m_manager.reset(bindWaylandGlobal(display, queue.get(), managerInterface));
  if (m_manager) {
    wl_proxy_set_queue(m_manager.get(), nullptr);  // in order with what Qt hears of the mouse
  }
}

WaylandPointerTravel::~WaylandPointerTravel() {
  stop();
}

bool WaylandPointerTravel::start() {
  stop();
  m_travelled = {};
  wl_pointer *pointer = wayland().pointer();
  if (!m_manager || pointer == nullptr) {
    return false;
  }
  m_motions = wl_proxy_marshal_flags(m_manager.get(), getRelativePointer, &motionsInterface, 1, 0,
                                     nullptr, pointer);
  static MotionListener listener{addMotion};
  wl_proxy_add_listener(m_motions, reinterpret_cast<void (**)(void)>(&listener), &m_travelled);
  return true;
}

void WaylandPointerTravel::stop() {
  if (m_motions != nullptr) {
    wl_proxy_marshal_flags(m_motions, destroyRequest, nullptr, 1, WL_MARSHAL_FLAG_DESTROY);
    m_motions = nullptr;
  }
}

}  // namespace lanternix
