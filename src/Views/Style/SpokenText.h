#pragma once

#include <QtCore/QString>

namespace lanternix {

struct PathItem;

/// Texts of the user's as a screen reader speaks them.
namespace SpokenText {

/// \p text without what cannot be spoken, and no longer than anybody would listen to.
QString of(const QString &text);

/// What there is to an item beside its name: its type, what is wrong with it, and \p path, by which
/// the item is shown, unless that is empty. Touches the file system as PathItem::isValid() does.
QString describing(const PathItem &item, const QString &path);

}  // namespace SpokenText

}  // namespace lanternix
