#include "Platform/Linux/ApplicationAdaptor.h"

#include "Platform/ActivationToken.h"
#include "Platform/Linux/BusSingleInstance.h"

#include <QtCore/QLoggingCategory>
#include <QtDBus/QDBusConnection>
#include <QtDBus/QDBusMessage>

#include <optional>

namespace lanternix {
namespace {

using namespace Qt::StringLiterals;
using Request = SingleInstance::Request;

Q_LOGGING_CATEGORY(instanceLog, "lanternix.instance", QtWarningMsg)

const QString tokenKey = u"activation-token"_s;
const QString startupIdKey = u"desktop-startup-id"_s;

ActivationToken tokenIn(const QVariantMap &platformData) {
  return {.token = platformData.value(tokenKey).toString(),
          .startupId = platformData.value(startupIdKey).toString()};
}

std::optional<Request> requestFor(const QString &action) {
  if (action == "show"_L1) {
    return Request::showPanel;
  }
  if (action == "toggle"_L1) {
    return Request::togglePanel;
  }
  if (action == "settings"_L1) {
    return Request::openSettings;
  }
  return std::nullopt;
}

}  // namespace

ApplicationAdaptor::ApplicationAdaptor(BusSingleInstance &instance)
    : QDBusAbstractAdaptor(&instance), m_instance(instance) {}

QVariantMap ApplicationAdaptor::platformData(const ActivationToken &token) {
  QVariantMap data;
  if (!token.token.isEmpty()) {
    data.insert(tokenKey, token.token);
  }
  if (!token.startupId.isEmpty()) {
    data.insert(startupIdKey, token.startupId);
  }
  return data;
}

void ApplicationAdaptor::Activate(const QVariantMap &platform_data) {
  m_instance.receive(Request::showPanel, tokenIn(platform_data));
}

void ApplicationAdaptor::Open(const QStringList &uris, const QVariantMap &platform_data) {
  qCInfo(instanceLog) << "Asked to open files, which the program does not take:" << uris;
  m_instance.receive(Request::showPanel, tokenIn(platform_data));
}

void ApplicationAdaptor::ActivateAction(const QString &action_name,
                                        const QVariantList & /*parameter*/,
                                        const QVariantMap &platform_data,
                                        const QDBusMessage &message) {
  if (const std::optional<Request> request = requestFor(action_name)) {
    m_instance.receive(*request, tokenIn(platform_data));
    return;
  }
  const QString reason =
      u"There is no action \"%1\", only \"toggle\", \"show\" and \"settings\""_s.arg(action_name);
  qCWarning(instanceLog).noquote() << reason;
  message.setDelayedReply(true);  // this is the reply
  QDBusConnection::sessionBus().send(message.createErrorReply(QDBusError::InvalidArgs, reason));
}

}  // namespace lanternix
