#pragma once

#include "Platform/HotkeyRegistrar.h"

#include <QtCore/QTimer>
#include <QtDBus/QDBusConnection>
#include <QtDBus/QDBusMessage>
#include <QtDBus/QDBusServiceWatcher>

#include <chrono>
#include <functional>
#include <memory>

namespace lanternix {

class PortalShortcut;

/// The shortcut by "org.freedesktop.portal.GlobalShortcuts" of the desktop portal, which asks the
/// user where the desktop wants that.
///
/// A portal that starts anew is asked anew. One that ends is started again by being asked, and a
/// shortcut that the desktop ends is asked for again: once each time that the shortcut has served,
/// so that a desktop in trouble is left alone.
class PortalHotkeyRegistrar : public HotkeyRegistrar {
  Q_OBJECT

 public:
  /// Whether the portal has global shortcuts.
  enum class Offer { unknown, there, missing };

  /// Asks the portal at once. Without an answer after \p patience there counts as none, until the
  /// answer comes. \p bus is for this object alone, which closes it in the end: the portal ties the
  /// program's identity to a connection, and wants to hear it before anything else there.
  explicit PortalHotkeyRegistrar(const QDBusConnection &bus,
                                 std::chrono::milliseconds patience = std::chrono::seconds(3));
  ~PortalHotkeyRegistrar() override;

  Offer offer() const { return m_offer; }

  /// While the offer is unknown, the wish is kept and true returned.
  bool registerHotkey(quint32 keyCode, quint32 classicModifiers) override;
  void unregisterHotkey() override;

 Q_SIGNALS:
  void offerChanged();

  /// The press that pressed() tells of next came with an activation token.
  void tokenReceived(const QString &token);

 private:
  using Handler = std::function<void(const QDBusMessage &reply)>;

  void followOwner(const QString &before, const QString &now);
  void forgetPortal();
  void introduceProgram();
  void askForOffer();
  void askForName();
  void call(const QString &interface, const QString &method, const QVariantList &arguments,
            const Handler &handler);
  void send(const QDBusMessage &message, const Handler &handler);
  void setOffer(Offer offer);
  void askForShortcut();
  void readGrant();
  void readPress(const QString &token);
  void readEnd();
  void readLoss(const QString &reason);
  void dropShortcut();

  QDBusConnection m_bus;
  QDBusServiceWatcher m_watcher;
  QTimer m_patience;
  /// The time that a portal has to come back by itself.
  QTimer m_pause;
  Offer m_offer = Offer::unknown;
  /// Counts the portals met, so that a late answer of one that has gone is known for that.
  int m_round = 0;
  bool m_isAsking = false;
  /// The portal's own name on the bus; empty while there is none that has the shortcuts.
  QString m_portal;
  /// Empty without a wish.
  QString m_trigger;
  /// What the caller knows of the wish.
  bool m_isToldRegistered = false;
  /// Whether what ends has been asked for again, and has not served since.
  bool m_isAskedAgain = false;
  std::unique_ptr<PortalShortcut> m_shortcut;
};

}  // namespace lanternix
