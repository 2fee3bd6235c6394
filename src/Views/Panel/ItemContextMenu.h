#pragma once

class QPoint;
class QWidget;

namespace lanternix {

class AppState;
struct PathItem;

/// The menu of an item's row: reveal, duplicate, copy, delete.
namespace ItemContextMenu {

/// Opens the menu for \p item at a global position and returns. The menu deletes itself; \p parent
/// owns it until then.
void popUp(AppState &appState, const PathItem &item, const QPoint &position, QWidget *parent);

}  // namespace ItemContextMenu

}  // namespace lanternix
