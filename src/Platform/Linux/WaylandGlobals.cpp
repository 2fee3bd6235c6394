#include "Platform/Linux/WaylandGlobals.h"

#include <QtCore/QtTypes>

#include <cstring>
#include <wayland-client.h>

namespace lanternix {
namespace {

struct Search {
  const wl_interface &interface;
  wl_proxy *found = nullptr;
};

void noteGlobal(void *data, wl_registry *registry, quint32 name, const char *interface,
                quint32 /*version*/) {
  auto &search = *static_cast<Search *>(data);
  if (search.found == nullptr && std::strcmp(interface, search.interface.name) == 0) {
    search.found = static_cast<wl_proxy *>(wl_registry_bind(registry, name, &search.interface, 1));
  }
}

void ignoreRemoval(void * /*data*/, wl_registry * /*registry*/, quint32 /*name*/) {}

}  // namespace

void WaylandRelease::operator()(wl_proxy *proxy) const {
  wl_proxy_destroy(proxy);
}

void WaylandRelease::operator()(wl_event_queue *queue) const {
  wl_event_queue_destroy(queue);
}

wl_proxy *bindWaylandGlobal(wl_display *display, wl_event_queue *queue,
                            const wl_interface &interface) {
  auto *ours = static_cast<wl_display *>(wl_proxy_create_wrapper(display));
  wl_proxy_set_queue(reinterpret_cast<wl_proxy *>(ours), queue);
  wl_registry *registry = wl_display_get_registry(ours);
  wl_proxy_wrapper_destroy(ours);
  static constexpr wl_registry_listener listener{noteGlobal, ignoreRemoval};
  Search search{interface};
  wl_registry_add_listener(registry, &listener, &search);
  wl_display_roundtrip_queue(display, queue);
  wl_registry_destroy(registry);
  return search.found;
}

}  // namespace lanternix
