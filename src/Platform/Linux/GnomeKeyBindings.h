#pragma once

#include <QtCore/QString>

namespace lanternix {

/// GNOME's key bindings, as its settings hold them. Accelerators are texts such as
/// "<Shift><Super>space"; instead of its name a key may be told by its X key code, "<Super>0x2d".
namespace GnomeKeyBindings {

/// Whether the settings for custom bindings are installed. Without them nothing else here may be
/// called.
bool areInstalled();

/// What starts one of \p accelerators already, of GNOME or of the user, as "schema key" or a custom
/// binding's path; empty when nothing does. The custom binding at \p ownPath does not count.
QString holderOf(const QStringList &accelerators, const QString &ownPath);

struct CustomBinding {
  QString name;
  QString command;
  QString accelerator;
};

/// Whether \p path is in the list of custom bindings.
bool hasCustom(const QString &path);

/// Writes a custom binding to \p path, and \p path into the list of those. False
/// when the settings may not be written.
bool setCustom(const QString &path, const CustomBinding &binding);

/// Takes the custom binding at \p path out of the list and away.
void removeCustom(const QString &path);

/// Waits until what has been written is kept, which else happens soon by itself: for who is about
/// to end.
void flush();

}  // namespace GnomeKeyBindings

}  // namespace lanternix
