#pragma once

#include <QtCore/QUuid>

#include <memory>
#include <optional>

class QMimeData;

namespace lanternix {

/// What a dragged row carries: the id of its group or item, under a type of the program's own. An
/// item carries it as plain text as well, in upper case, so that whoever takes text may have it.
namespace DragPayload {

std::unique_ptr<QMimeData> forGroup(const QUuid &id);
std::unique_ptr<QMimeData> forItem(const QUuid &id);

/// The id of the group, of the item, whose row is dragged; none for anything else.
std::optional<QUuid> groupId(const QMimeData &data);
std::optional<QUuid> itemId(const QMimeData &data);

/// Whether there is plain text, of which formatted text and lists of files are none.
bool hasPlainText(const QMimeData &data);
/// The id that the plain text is, all of it; none for any other text.
std::optional<QUuid> idInPlainText(const QMimeData &data);

}  // namespace DragPayload

}  // namespace lanternix
