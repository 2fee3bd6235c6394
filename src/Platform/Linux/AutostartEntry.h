#pragma once

#include "Platform/LoginItem.h"

#include <QtCore/QByteArray>
#include <QtCore/QStringList>

namespace lanternix {

/// The desktop entry by which a desktop starts the program at login: what is written into it, and
/// what is read out of it by the rules of the desktops that carry it out.
namespace AutostartEntry {

/// An entry that starts \p program, an absolute path of whatever characters.
QByteArray starting(const QString &program);

/// An entry that takes the place of a system-wide one and starts nothing.
QByteArray masking();

/// What \p entry means for the program at the absolute path \p program on a desktop that goes by
/// the names \p desktops, the most special first. LoginItem::Status::enabled only if the program
/// would really be started: commands are looked up on the present PATH, links are followed.
LoginItem::Status status(const QByteArray &entry, const QString &program,
                         const QStringList &desktops);

}  // namespace AutostartEntry

}  // namespace lanternix
