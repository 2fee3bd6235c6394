#include "Platform/Linux/SwayHotkeyRegistrar.h"

#include "Platform/ApplicationId.h"
#include "Platform/Linux/SwayConnection.h"

#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtCore/QLoggingCategory>

#include <utility>

namespace lanternix {
namespace {

using namespace Qt::StringLiterals;

Q_LOGGING_CATEGORY(hotkeyLog, "lanternix.hotkey", QtWarningMsg)

/// The command that is bound; by it the binding is known among all others.
const QString command = u"nop "_s + applicationId + u" toggle"_s;

bool isSuccess(const QJsonDocument &answer) {
  // A list with one outcome for each command, or the outcome of the only one there was.
  const QJsonObject outcome =
      answer.isArray() ? answer.array().first().toObject() : answer.object();
  return outcome["success"_L1].toBool();
}

/// By the key itself where the binding is told by a symbol, so that it stays there when the user
/// switches to another layout.
QString flags(const KeyNames::SwayBinding &binding) {
  return binding.command == "bindsym"_L1 ? u" --to-code "_s : u" "_s;
}

}  // namespace

SwayHotkeyRegistrar::SwayHotkeyRegistrar(QString socketPath)
    : m_socketPath(std::move(socketPath)) {}

SwayHotkeyRegistrar::~SwayHotkeyRegistrar() {
  release();
}

bool SwayHotkeyRegistrar::isAvailable() const {
  return SwayConnection(m_socketPath).isOpen();
}

bool SwayHotkeyRegistrar::registerHotkey(quint32 keyCode, quint32 classicModifiers) {
  release();
  m_binding = KeyNames::swayBinding(keyCode, classicModifiers);
  if (m_binding->keys.isEmpty() || !listen() || !bind()) {
    m_binding.reset();
    stopListening();
  }
  return m_binding.has_value();
}

void SwayHotkeyRegistrar::unregisterHotkey() {
  release();
}

void SwayHotkeyRegistrar::release() {
  if (m_binding) {
    isDone(u"un"_s + m_binding->command + flags(*m_binding) + m_binding->keys);
    m_binding.reset();
  }
  stopListening();
}

bool SwayHotkeyRegistrar::bind() const {
  // A held key would run it again and again.
  return isDone(m_binding->command + u" --no-repeat"_s + flags(*m_binding) + m_binding->keys +
                u' ' + command);
}

/// Runs a command of sway's.
bool SwayHotkeyRegistrar::isDone(const QString &line) const {
  SwayConnection connection(m_socketPath);
  const auto answer = connection.ask(SwayConnection::runCommand, line.toUtf8());
  const bool done = answer && isSuccess(QJsonDocument::fromJson(answer->payload));
  if (!done) {
    qCInfo(hotkeyLog) << "Sway does not carry out" << line << ":"
                      << (answer ? answer->payload : QByteArray("no answer"));
  }
  return done;
}

bool SwayHotkeyRegistrar::listen() {
  auto events = std::make_unique<SwayConnection>(m_socketPath);
  const auto answer = events->ask(SwayConnection::subscribe, R"(["binding","workspace"])");
  if (!answer || !isSuccess(QJsonDocument::fromJson(answer->payload))) {
    return false;
  }
  m_events = std::move(events);
  m_notifier = std::make_unique<QSocketNotifier>(m_events->descriptor(), QSocketNotifier::Read);
  connect(m_notifier.get(), &QSocketNotifier::activated, this, &SwayHotkeyRegistrar::readEvents);
  return true;
}

void SwayHotkeyRegistrar::stopListening() {
  // Whoever presses the shortcut may change it before the notifier has come to its end.
  if (m_notifier) {
    m_notifier->setEnabled(false);
    m_notifier.release()->deleteLater();
  }
  m_events.reset();
}

void SwayHotkeyRegistrar::readEvents() {
  m_events->readAvailable();
  while (m_events) {
    const auto event = m_events->takeMessage();
    if (!event) {
      break;
    }
    readEvent(event->kind, event->payload);
  }
  if (m_events && !m_events->isOpen()) {
    lose("sway has gone");
  }
}

void SwayHotkeyRegistrar::readEvent(quint32 kind, const QByteArray &payload) {
  const QJsonObject event = QJsonDocument::fromJson(payload).object();
  if (kind == SwayConnection::bindingEvent) {
    if (event["binding"_L1]["command"_L1].toString() == command) {
      Q_EMIT pressed();
    }
  } else if (event["change"_L1] == "reload"_L1 && !bind()) {
    lose("sway's new configuration has no room for it");
  }
}

void SwayHotkeyRegistrar::lose(const char *reason) {
  qCInfo(hotkeyLog) << "The shortcut is lost:" << reason;
  m_binding.reset();
  stopListening();
  Q_EMIT registrationChanged(false);
}

}  // namespace lanternix
