#include "Platform/Linux/GnomeHotkeyRegistrar.h"

#include "Platform/ApplicationId.h"
#include "Platform/KeyNames.h"
#include "Platform/Linux/GnomeKeyBindings.h"

#include <QtCore/QLoggingCategory>
#include <QtCore/QStandardPaths>
#include <QtCore/QStringList>

namespace lanternix {
namespace {

using namespace Qt::StringLiterals;

Q_LOGGING_CATEGORY(hotkeyLog, "lanternix.hotkey", QtWarningMsg)

const QString path =
    u"/org/gnome/settings-daemon/plugins/media-keys/custom-keybindings/lanternix/"_s;

/// A tool of the library that GNOME keeps its settings by; some systems have it in a package of its
/// own.
const QString tool = u"gdbus"_s;
const QString toggleCommand =
    tool + u" call --session --dest "_s + applicationId + u" --object-path "_s + applicationPath +
    u" --method org.freedesktop.Application.ActivateAction toggle [] {}"_s;

}  // namespace

GnomeHotkeyRegistrar::GnomeHotkeyRegistrar() : m_isRegistered(GnomeKeyBindings::hasCustom(path)) {}

GnomeHotkeyRegistrar::~GnomeHotkeyRegistrar() {
  release();
  GnomeKeyBindings::flush();
}

bool GnomeHotkeyRegistrar::isAvailable() {
  const QStringList desktops = qEnvironmentVariable("XDG_CURRENT_DESKTOP").split(u':');
  if (!desktops.contains("GNOME"_L1, Qt::CaseInsensitive) || !GnomeKeyBindings::areInstalled()) {
    return false;
  }
  const bool hasTool = !QStandardPaths::findExecutable(tool).isEmpty();
  if (!hasTool) {
    qCInfo(hotkeyLog) << "There is no" << tool << "for GNOME to call the program by";
  }
  return hasTool;
}

bool GnomeHotkeyRegistrar::registerHotkey(quint32 keyCode, quint32 classicModifiers) {
  const QStringList accelerators = KeyNames::gnomeAccelerators(keyCode, classicModifiers);
  const QString holder = GnomeKeyBindings::holderOf(accelerators, path);
  if (!holder.isEmpty()) {
    qCInfo(hotkeyLog).noquote() << "GNOME has" << accelerators.join(u" or "_s) << "for" << holder;
  }
  if (accelerators.isEmpty() || !holder.isEmpty()) {
    release();
    return false;
  }
  m_isRegistered = true;  // in part, should the next step fail midway
  if (!GnomeKeyBindings::setCustom(path,
                                   {u"Lanternix"_s, toggleCommand, accelerators.constFirst()})) {
    qCInfo(hotkeyLog) << "GNOME's key bindings may not be written";
    release();
  }
  return m_isRegistered;
}

void GnomeHotkeyRegistrar::unregisterHotkey() {
  release();
}

void GnomeHotkeyRegistrar::release() {
  if (m_isRegistered) {
    m_isRegistered = false;
    GnomeKeyBindings::removeCustom(path);
  }
}

}  // namespace lanternix
