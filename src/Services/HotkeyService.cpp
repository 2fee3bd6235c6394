#include "Services/HotkeyService.h"

#include "Platform/HotkeyRegistrar.h"
#include "Platform/UserDefaults.h"
#include "Services/Preferences.h"

#include <QtCore/QLoggingCategory>

namespace lanternix {
namespace {

Q_LOGGING_CATEGORY(hotkeyLog, "lanternix.hotkey", QtWarningMsg)

HotkeyShortcut storedShortcut(const UserDefaults &userDefaults) {
  const auto stored = userDefaults.data(Preferences::globalShortcut);
  if (stored.state == StoredValue<QByteArray>::State::absent) {
    return {};
  }
  const auto shortcut = HotkeyShortcut::decoded(stored.valueOr({}));
  if (!shortcut) {
    qCWarning(hotkeyLog) << "The stored shortcut cannot be read; the default one holds until"
                         << "another is chosen";
  }
  return shortcut.value_or(HotkeyShortcut{});
}

}  // namespace

HotkeyService::HotkeyService(UserDefaults &userDefaults, HotkeyRegistrar &registrar,
                             QObject *parent)
    : QObject(parent),
      m_userDefaults(userDefaults),
      m_registrar(registrar),
      m_currentShortcut(storedShortcut(userDefaults)) {
  // Queued, so that the toggle never runs inside the window system's event callback.
  connect(&registrar, &HotkeyRegistrar::pressed, this, &HotkeyService::toggle,
          Qt::QueuedConnection);
  connect(&registrar, &HotkeyRegistrar::registrationChanged, this,
          &HotkeyService::noteRegistration);
  registerShortcut();
}

HotkeyService::~HotkeyService() {
  m_registrar.unregisterHotkey();
}

void HotkeyService::setCurrentShortcut(const HotkeyShortcut &shortcut) {
  const bool changed = shortcut != m_currentShortcut;
  m_currentShortcut = shortcut;
  m_userDefaults.setData(shortcut.encoded(), Preferences::globalShortcut);
  if (!m_paused) {
    m_registrar.unregisterHotkey();
    registerShortcut();
  }
  if (changed) {
    Q_EMIT currentShortcutChanged();
  }
}

void HotkeyService::setPaused(bool paused) {
  if (paused == m_paused) {
    return;
  }
  m_paused = paused;
  if (paused) {
    m_registrar.unregisterHotkey();
    m_registered = false;
  } else {
    registerShortcut();
  }
}

void HotkeyService::registerShortcut() {
  noteRegistration(
      m_registrar.registerHotkey(m_currentShortcut.keyCode, m_currentShortcut.carbonModifiers()));
}

void HotkeyService::noteRegistration(bool registered) {
  m_registered = registered;
  if (!m_registered) {
    qCWarning(hotkeyLog).noquote()
        << "The shortcut" << m_currentShortcut.displayString()
        << "cannot be had: another program holds it, the keyboard has no such key, or the desktop"
        << "declines. Free it there or choose another one.";
  }
}

void HotkeyService::toggle() {
  const auto callback = onToggle;  // kept alive should the call replace it
  if (callback) {
    callback();
  }
}

}  // namespace lanternix
