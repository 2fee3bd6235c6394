#include "Platform/Linux/WaylandLayerShell.h"

#include "Platform/Linux/LayerShellProtocol.h"

#include <QtCore/QDeadlineTimer>
#include <QtCore/QLoggingCategory>
#include <QtGui/QGuiApplication>

#include <poll.h>
#include <wayland-client.h>

namespace lanternix {
namespace {

Q_LOGGING_CATEGORY(windowsLog, "lanternix.windows", QtWarningMsg)

/// The listener of a layer surface: how large it may be, and that it is taken away.
struct SurfaceListener {
  void (*configure)(void *data, wl_proxy *surface, quint32 serial, quint32 width, quint32 height);
  void (*closed)(void *data, wl_proxy *surface);
};

void noteSize(void *data, wl_proxy * /*surface*/, quint32 /*serial*/, quint32 width,
              quint32 height) {
  *static_cast<std::optional<QSize> *>(data) =
      QSize(static_cast<int>(width), static_cast<int>(height));
}

void ignoreClosing(void * /*data*/, wl_proxy * /*surface*/) {}

using Listener = void (**)(void);

}  // namespace

std::unique_ptr<WaylandLayerShell> WaylandLayerShell::find() {
  const auto *wayland = qGuiApp->nativeInterface<QNativeInterface::QWaylandApplication>();
  if (wayland == nullptr) {
    return nullptr;
  }
  std::unique_ptr<WaylandLayerShell> shell(
      new WaylandLayerShell(wayland->display(), wayland->compositor()));
  return shell->m_shell ? std::move(shell) : nullptr;
}

WaylandLayerShell::WaylandLayerShell(wl_display *display, wl_compositor *compositor)
    : m_display(display),
      m_queue(wl_display_create_queue(display)),
      m_compositor(static_cast<wl_proxy *>(wl_proxy_create_wrapper(compositor)),
                   [](wl_proxy *wrapper) { wl_proxy_wrapper_destroy(wrapper); }) {
  wl_proxy_set_queue(m_compositor.get(), m_queue.get());
  m_shell.reset(bindWaylandGlobal(display, m_queue.get(), LayerShellProtocol::shell));
}

/// A surface that fills what may be filled is told how much that is. It never gets a picture, so
/// that nothing of it is seen.
std::optional<QSize> WaylandLayerShell::usableSize() const {
  wl_surface *surface =
      wl_compositor_create_surface(reinterpret_cast<wl_compositor *>(m_compositor.get()));
  wl_proxy *layerSurface = wl_proxy_marshal_flags(
      m_shell.get(), LayerShellProtocol::getLayerSurface, &LayerShellProtocol::surface, 1, 0,
      nullptr, surface, nullptr, LayerShellProtocol::overlayLayer, "lanternix-work-area");
  static constexpr SurfaceListener listener{noteSize, ignoreClosing};
  std::optional<QSize> size;
  wl_proxy_add_listener(
      layerSurface, reinterpret_cast<Listener>(const_cast<SurfaceListener *>(&listener)), &size);
  wl_proxy_marshal_flags(layerSurface, LayerShellProtocol::setAnchor, nullptr, 1, 0,
                         LayerShellProtocol::everyEdge);
  wl_surface_commit(surface);
  using namespace std::chrono_literals;
  const QDeadlineTimer deadline(50ms);
  while (!size && !deadline.hasExpired() && hear(deadline)) {
  }
  wl_proxy_marshal_flags(layerSurface, LayerShellProtocol::destroy, nullptr, 1,
                         WL_MARSHAL_FLAG_DESTROY);
  wl_surface_destroy(surface);
  if (!size || size->isEmpty()) {
    qCWarning(windowsLog) << "The compositor does not tell how large its screen is";
    return std::nullopt;
  }
  return size;
}

/// Takes in what the compositor says next. False when it has not said anything by the deadline.
bool WaylandLayerShell::hear(const QDeadlineTimer &deadline) const {
  while (wl_display_prepare_read_queue(m_display, m_queue.get()) != 0) {
    const int heard = wl_display_dispatch_queue_pending(m_display, m_queue.get());
    if (heard != 0) {
      return heard > 0;
    }
  }
  wl_display_flush(m_display);
  pollfd connection{wl_display_get_fd(m_display), POLLIN, 0};
  if (::poll(&connection, 1, static_cast<int>(deadline.remainingTime())) <= 0) {
    wl_display_cancel_read(m_display);
    return false;
  }
  return wl_display_read_events(m_display) >= 0 &&
         wl_display_dispatch_queue_pending(m_display, m_queue.get()) >= 0;
}

}  // namespace lanternix
