#include "Platform/Linux/PortalHotkeyRegistrar.h"

#include "Platform/ApplicationId.h"
#include "Platform/KeyNames.h"
#include "Platform/Linux/PortalPeer.h"
#include "Platform/Linux/PortalShortcut.h"

#include <QtCore/QLoggingCategory>
#include <QtDBus/QDBusPendingCallWatcher>

#include <utility>

namespace lanternix {
namespace {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

Q_LOGGING_CATEGORY(hotkeyLog, "lanternix.hotkey", QtWarningMsg)

}  // namespace

PortalHotkeyRegistrar::PortalHotkeyRegistrar(const QDBusConnection &bus,
                                             std::chrono::milliseconds patience)
    : m_bus(bus),
      m_watcher(PortalPeer::serviceName, bus, QDBusServiceWatcher::WatchForOwnerChange) {
  connect(&m_watcher, &QDBusServiceWatcher::serviceOwnerChanged, this,
          [this](const QString & /*service*/, const QString &before, const QString &now) {
            followOwner(before, now);
          });
  m_patience.setSingleShot(true);
  m_patience.setInterval(patience);
  connect(&m_patience, &QTimer::timeout, this, [this] {
    qCInfo(hotkeyLog) << "The desktop portal does not answer";
    setOffer(Offer::missing);
  });
  m_pause.setSingleShot(true);
  m_pause.setInterval(1s);
  connect(&m_pause, &QTimer::timeout, this, [this] {
    m_isAskedAgain = true;
    introduceProgram();  // for which the bus starts a portal
  });
  m_patience.start();
  introduceProgram();
}

PortalHotkeyRegistrar::~PortalHotkeyRegistrar() {
  // What listens goes first: a signal that comes in while the connection is being ended would be
  // kept by the dead one.
  m_shortcut.reset();
  qDeleteAll(findChildren<PortalShortcut *>());
  m_watcher.removeWatchedService(PortalPeer::serviceName);
  QDBusConnection::disconnectFromBus(m_bus.name());
}

bool PortalHotkeyRegistrar::registerHotkey(quint32 keyCode, quint32 classicModifiers) {
  unregisterHotkey();
  m_trigger = KeyNames::portalTrigger(keyCode, classicModifiers);
  m_isAskedAgain = false;
  m_isToldRegistered = !m_trigger.isEmpty() && m_offer != Offer::missing;
  askForShortcut();
  return m_isToldRegistered;
}

void PortalHotkeyRegistrar::unregisterHotkey() {
  m_trigger.clear();
  m_shortcut.reset();
}

void PortalHotkeyRegistrar::followOwner(const QString &before, const QString &now) {
  const bool hadOffer = m_offer == Offer::there;
  if (!before.isEmpty()) {
    forgetPortal();
  }
  // A portal that our question has made start has that question already.
  if (!now.isEmpty() && !m_isAsking) {
    introduceProgram();
  } else if (now.isEmpty() && hadOffer) {
    m_isAskedAgain ? setOffer(Offer::missing) : m_pause.start();
  }
}

void PortalHotkeyRegistrar::forgetPortal() {
  ++m_round;
  m_isAsking = false;
  m_portal.clear();
  if (m_shortcut) {
    m_shortcut.reset();
    readLoss(u"the desktop portal has ended"_s);
  }
  if (m_offer == Offer::there) {
    setOffer(Offer::unknown);
    m_patience.start();
  }
}

/// A program that no sandbox speaks for says itself who it is. Portals that cannot be told know it
/// by other means, or not at all.
void PortalHotkeyRegistrar::introduceProgram() {
  m_isAsking = true;
  m_pause.stop();
  call(u"org.freedesktop.host.portal.Registry"_s, u"Register"_s,
       {QString(applicationId), QVariantMap()}, [this](const QDBusMessage &reply) {
         if (reply.type() == QDBusMessage::ErrorMessage) {
           qCInfo(hotkeyLog).noquote()
               << "The desktop portal does not take the program's name:" << reply.errorMessage();
         }
         askForOffer();
       });
}

void PortalHotkeyRegistrar::askForOffer() {
  call(u"org.freedesktop.DBus.Properties"_s, u"Get"_s,
       {u"org.freedesktop.portal.GlobalShortcuts"_s, u"version"_s},
       [this](const QDBusMessage &reply) {
         if (reply.type() == QDBusMessage::ReplyMessage) {
           askForName();
           return;
         }
         qCInfo(hotkeyLog).noquote()
             << "The desktop portal has no global shortcuts:" << reply.errorMessage();
         m_isAsking = false;
         m_portal.clear();
         setOffer(Offer::missing);
       });
}

void PortalHotkeyRegistrar::askForName() {
  send(PortalPeer::nameQuestion(), [this](const QDBusMessage &reply) {
    m_isAsking = false;
    if (reply.signature() == "s"_L1) {
      m_portal = reply.arguments().constFirst().toString();
      setOffer(Offer::there);
      askForShortcut();
    }
  });
}

void PortalHotkeyRegistrar::call(const QString &interface, const QString &method,
                                 const QVariantList &arguments, const Handler &handler) {
  auto message = QDBusMessage::createMethodCall(PortalPeer::serviceName, PortalPeer::objectPath,
                                                interface, method);
  message.setArguments(arguments);
  send(message, handler);
}

void PortalHotkeyRegistrar::send(const QDBusMessage &message, const Handler &handler) {
  auto *pending = new QDBusPendingCallWatcher(m_bus.asyncCall(message), this);
  connect(pending, &QDBusPendingCallWatcher::finished, this,
          [this, pending, handler, round = m_round] {
            pending->deleteLater();
            if (round == m_round) {
              handler(pending->reply());
            }
          });
}

void PortalHotkeyRegistrar::setOffer(Offer offer) {
  m_patience.stop();
  if (offer == m_offer) {
    return;
  }
  m_offer = offer;
  Q_EMIT offerChanged();
  // Unless the wish has been taken elsewhere by now.
  if (offer == Offer::missing && !m_trigger.isEmpty()) {
    readLoss(u"it has none to offer"_s);
  }
}

void PortalHotkeyRegistrar::askForShortcut() {
  if (m_portal.isEmpty() || m_trigger.isEmpty() || m_shortcut) {
    return;
  }
  m_shortcut = std::make_unique<PortalShortcut>(PortalPeer{m_bus, m_portal}, m_trigger);
  connect(m_shortcut.get(), &PortalShortcut::activated, this, &PortalHotkeyRegistrar::readPress);
  connect(m_shortcut.get(), &PortalShortcut::granted, this, &PortalHotkeyRegistrar::readGrant);
  connect(m_shortcut.get(), &PortalShortcut::ended, this, &PortalHotkeyRegistrar::readEnd);
  connect(m_shortcut.get(), &PortalShortcut::refused, this, [this](const QString &reason) {
    dropShortcut();
    readLoss(reason);
  });
}

void PortalHotkeyRegistrar::readGrant() {
  qCDebug(hotkeyLog) << "the desktop portal grants" << m_trigger;
  if (!std::exchange(m_isToldRegistered, true)) {
    Q_EMIT registrationChanged(true);
  }
}

void PortalHotkeyRegistrar::readPress(const QString &token) {
  m_isAskedAgain = false;
  if (!token.isEmpty()) {
    Q_EMIT tokenReceived(token);
  }
  Q_EMIT pressed();
}

void PortalHotkeyRegistrar::readEnd() {
  dropShortcut();
  if (std::exchange(m_isAskedAgain, true)) {
    readLoss(u"the desktop has ended it"_s);
  } else {
    askForShortcut();
  }
}

/// Later, because it is the one that speaks.
void PortalHotkeyRegistrar::dropShortcut() {
  m_shortcut->disconnect(this);
  m_shortcut->setParent(this);
  m_shortcut.release()->deleteLater();
}

void PortalHotkeyRegistrar::readLoss(const QString &reason) {
  qCInfo(hotkeyLog).noquote() << "No shortcut from the desktop portal:" << reason;
  if (std::exchange(m_isToldRegistered, false)) {
    Q_EMIT registrationChanged(false);
  }
}

}  // namespace lanternix
