#include "Platform/WindowSystemChoice.h"

#include <QtCore/QString>

#include <xcb/xcb.h>

namespace lanternix {
namespace {

using namespace Qt::StringLiterals;

bool isWaylandSession() {
  return !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY") ||
         qEnvironmentVariable("XDG_SESSION_TYPE") == "wayland"_L1;
}

/// Takes X in a Wayland session that has a server for it: there a program can place its windows and
/// raise them, which Wayland itself leaves to the compositor.
class XWaylandChoice : public WindowSystemChoice {
 public:
  XWaylandChoice() {
    const bool isOpen = isWaylandSession() && qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM") &&
                        !qEnvironmentVariableIsEmpty("DISPLAY");
    if (isOpen) {
      m_connection.reset(xcb_connect(nullptr, nullptr));
    }
  }

  QByteArray platformName() const override {
    const bool isReachable = m_connection && xcb_connection_has_error(m_connection.get()) == 0;
    return isReachable ? "xcb"_ba : QByteArray();
  }

 private:
  struct Disconnect {
    void operator()(xcb_connection_t *connection) const { xcb_disconnect(connection); }
  };

  /// Compositors start this server for its first program and end it after its last one, so this
  /// one stays until Qt's own connection is there.
  std::unique_ptr<xcb_connection_t, Disconnect> m_connection;
};

}  // namespace

std::unique_ptr<WindowSystemChoice> chooseWindowSystem() {
  return std::make_unique<XWaylandChoice>();
}

}  // namespace lanternix
