#pragma once

namespace lanternix {

/// Whether the session says where its bus is. Ask before connecting: without an address the bus
/// libraries would start a bus of their own, which takes long and which nobody else is on.
bool isSessionBusAnnounced();

/// Whether there is a session bus. Connects to it as QDBusConnection::sessionBus().
bool hasSessionBus();

}  // namespace lanternix
