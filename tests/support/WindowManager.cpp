#include "support/WindowManager.h"

#include "support/HarnessError.h"
#include "support/ProgramEnvironment.h"
#include "support/VirtualDisplay.h"
#include "support/WaitUntil.h"

#include <QtCore/QDir>

namespace lanternix {

using namespace Qt::StringLiterals;

namespace {

WindowManagerRecipe chosenRecipe(const QString &home) {
  const QString name = qEnvironmentVariable("LANTERNIX_WINDOW_MANAGER", u"openbox"_s);
  auto recipe = windowManagerRecipe(name, home, chosenBlending() == Blending::windowManager);
  if (!recipe) {
    throw HarnessError(
        u"there is no recipe for a window manager \"%1\", or it cannot blend windows"_s.arg(name));
  }
  return *std::move(recipe);
}

/// Asks for another size of a window that is not shown, which the window manager is asked to grant
/// and grants as it comes, until the answer shows that its event loop runs. What it reads from the
/// server while it starts can lie unseen until the next event, so that asking once is not enough.
void awaitEventLoop(const XConnection &connection) {
  const xcb_window_t window = xcb_generate_id(connection);
  xcb_create_window(connection, XCB_COPY_FROM_PARENT, window, connection.root(), 0, 0, 1, 1, 0,
                    XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT, 0, nullptr);
  constexpr quint32 wider = 2;
  require(u"the window manager's answer"_s, [&] {
    xcb_configure_window(connection, window, XCB_CONFIG_WINDOW_WIDTH, &wider);
    const XReply<xcb_get_geometry_reply_t> geometry(
        xcb_get_geometry_reply(connection, xcb_get_geometry(connection, window), nullptr));
    return geometry && geometry->width == wider;
  });
  xcb_destroy_window(connection, window);
  connection.sync();
}

}  // namespace

Blending chosenBlending() {
  const QString name = qEnvironmentVariable("LANTERNIX_COMPOSITOR", u"none"_s);
  if (name == "none"_L1) {
    return Blending::nobody;
  }
  if (name == "picom"_L1) {
    return Blending::compositor;
  }
  if (name == "own"_L1) {
    return Blending::windowManager;
  }
  throw HarnessError(
      u"LANTERNIX_COMPOSITOR is \"%1\", which is none of none, picom and own"_s.arg(name));
}

WindowManager::WindowManager(const VirtualDisplay &display)
    : m_connection(display.name()),
      m_recipe(chosenRecipe(m_home.path())),
      m_environment(prepareHome(display)),
      m_process(m_recipe.program, m_recipe.debianPackage) {
  if (m_recipe.needsBus) {
    m_bus = std::make_unique<SessionBus>(SessionBus::Services::installed, m_environment);
    m_environment.insert(u"DBUS_SESSION_BUS_ADDRESS"_s, m_bus->address());
  }
  m_process.start(m_recipe.arguments, m_environment);
  constexpr std::chrono::seconds startLimit{30};  // KWin has much to read
  if (!waitUntil([&] { return isManaging() || !m_process.isRunning(); }, startLimit) ||
      !m_process.isRunning()) {
    throw HarnessError(u"%1 did not come up: %2"_s.arg(
        name(), QString::fromUtf8(m_process.output() + m_process.errors())));
  }
  settle();
}

QProcessEnvironment WindowManager::prepareHome(const VirtualDisplay &display) {
  for (const auto &file : m_recipe.files) {
    ProgramEnvironment::write(m_home.filePath(file.path), file.content);
  }
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  environment.insert(u"DISPLAY"_s, display.name());
  environment.insert(u"HOME"_s, m_home.path());
  for (const auto &[name, path] :
       {std::pair(u"XDG_CONFIG_HOME"_s, u".config"_s), std::pair(u"XDG_CACHE_HOME"_s, u".cache"_s),
        std::pair(u"XDG_DATA_HOME"_s, u".local/share"_s),
        std::pair(u"XDG_RUNTIME_DIR"_s, u"run"_s)}) {
    QDir().mkpath(m_home.filePath(path));
    environment.insert(name, m_home.filePath(path));
  }
  QFile::setPermissions(m_home.filePath(u"run"_s),
                        QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
  environment.remove(u"DBUS_SESSION_BUS_ADDRESS"_s);
  for (const auto &[name, value] : m_recipe.variables) {
    environment.insert(name, value);
  }
  return environment;
}

/// It names itself first, then says what it offers, then who has the keyboard or where windows may
/// be. Only with a compositor of its own it is also known as that.
bool WindowManager::isManaging() const {
  const xcb_window_t root = m_connection.root();
  const xcb_window_t check = m_connection.number(root, "_NET_SUPPORTING_WM_CHECK");
  const XReply<xcb_get_selection_owner_reply_t> compositor(xcb_get_selection_owner_reply(
      m_connection, xcb_get_selection_owner(m_connection, m_connection.atom("_NET_WM_CM_S0")),
      nullptr));
  const bool blends = compositor && compositor->owner != XCB_WINDOW_NONE;
  return check != XCB_WINDOW_NONE &&
         m_connection.number(check, "_NET_SUPPORTING_WM_CHECK") == check &&
         !m_connection.property(root, "_NET_SUPPORTED").isEmpty() &&
         (!m_recipe.namesWorkArea || !m_connection.property(root, "_NET_WORKAREA").isEmpty()) &&
         (blends || chosenBlending() != Blending::windowManager);
}

void WindowManager::settle() const {
  awaitEventLoop(m_connection);
}

void WindowManager::switchToDesktop(int desktop) const {
  if (!m_recipe.switchDesktop.isEmpty()) {
    ChildProcess command(m_recipe.switchDesktop.first(), m_recipe.debianPackage);
    command.start(m_recipe.switchDesktop.sliced(1) + QStringList(QString::number(desktop + 1)),
                  m_environment);
    require(u"the other desktop"_s, [&] { return command.exitCode() == 0; });
    return;
  }
  xcb_client_message_event_t event{};
  event.response_type = XCB_CLIENT_MESSAGE;
  event.format = 32;
  event.window = m_connection.root();
  event.type = m_connection.atom("_NET_CURRENT_DESKTOP");
  event.data.data32[0] = static_cast<quint32>(desktop);
  xcb_send_event(m_connection, 0, m_connection.root(),
                 XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT,
                 reinterpret_cast<const char *>(&event));
  m_connection.sync();
}

}  // namespace lanternix
