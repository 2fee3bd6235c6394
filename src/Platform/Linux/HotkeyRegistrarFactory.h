#pragma once

#include <QtDBus/QDBusConnection>

#include <memory>

namespace lanternix {

class HotkeyRegistrar;
class WindowSystem;
class X11EventTime;
class X11KeyboardHold;
class X11Server;

/// The door to the global shortcut of a program that runs on X: a grab, unless the server is one
/// for X programs in a Wayland session, where a grab works only while such a program has the
/// keyboard.
std::unique_ptr<HotkeyRegistrar> makeHotkeyRegistrar(const X11Server &server,
                                                     X11EventTime &eventTime,
                                                     X11KeyboardHold &keyboardHold);

/// The door of a Wayland session: the desktop portal's shortcuts, else sway's, else GNOME's. Where
/// there is none, one that refuses. The portal is asked for on \p bus, a connection that nobody
/// else uses; without a bus it is disconnected. \p windowSystem is told of the activation token
/// that a press comes with.
std::unique_ptr<HotkeyRegistrar> makeWaylandHotkeyRegistrar(WindowSystem &windowSystem,
                                                            const QDBusConnection &bus);

/// A connection to the session bus for the door to the shortcut, disconnected without such a bus.
QDBusConnection connectForShortcuts();

}  // namespace lanternix
