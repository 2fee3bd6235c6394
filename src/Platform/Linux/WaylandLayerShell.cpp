#include "Platform/Linux/WaylandLayerShell.h"

#include "Platform/Linux/LayerShellProtocol.h"

#include <QtCore/QDeadlineTimer>
#include <QtCore/QLoggingCategory>
#include <QtGui/QGuiApplication>

#include <cstring>
#include <wayland-client.h>

namespace lanternix {
namespace {

Q_LOGGING_CATEGORY(windowsLog, "lanternix.windows", QtWarningMsg)

using namespace Qt::StringLiterals;

void noteShell(void *data, wl_registry *registry, quint32 name, const char *interface,
               quint32 /*version*/) {
  auto &shell = *static_cast<void **>(data);
  if (shell == nullptr && std::strcmp(interface, LayerShellProtocol::shell.name) == 0) {
    shell = wl_registry_bind(registry, name, &LayerShellProtocol::shell, 1);
  }
}

void ignoreRemoval(void * /*data*/, wl_registry * /*registry*/, quint32 /*name*/) {}

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

void callAction(void *data, wl_callback *callback, quint32 /*time*/) {
  wl_callback_destroy(callback);
  const std::unique_ptr<std::function<void()>> action(static_cast<std::function<void()> *>(data));
  (*action)();
}

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
  bindShell();
}

WaylandLayerShell::~WaylandLayerShell() = default;

void WaylandLayerShell::bindShell() {
  auto *ours = static_cast<wl_display *>(wl_proxy_create_wrapper(m_display));
  wl_proxy_set_queue(reinterpret_cast<wl_proxy *>(ours), m_queue.get());
  wl_registry *registry = wl_display_get_registry(ours);
  wl_proxy_wrapper_destroy(ours);
  static constexpr wl_registry_listener listener{noteShell, ignoreRemoval};
  void *shell = nullptr;
  wl_registry_add_listener(registry, &listener, &shell);
  wl_display_roundtrip_queue(m_display, m_queue.get());
  wl_registry_destroy(registry);
  m_shell.reset(static_cast<wl_proxy *>(shell));
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
  // Some compositors answer in their next round only.
  using namespace std::chrono_literals;
  const QDeadlineTimer deadline(50ms);
  while (!size && !deadline.hasExpired() &&
         wl_display_roundtrip_queue(m_display, m_queue.get()) >= 0) {
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

void WaylandLayerShell::afterAllSent(std::function<void()> action) const {
  static constexpr wl_callback_listener listener{callAction};
  wl_callback_add_listener(wl_display_sync(m_display), &listener,
                           new std::function<void()>(std::move(action)));
}

void WaylandLayerShell::Release::operator()(wl_proxy *proxy) const {
  wl_proxy_destroy(proxy);
}

void WaylandLayerShell::Release::operator()(wl_event_queue *queue) const {
  wl_event_queue_destroy(queue);
}

}  // namespace lanternix
