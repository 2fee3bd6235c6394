#pragma once

#include "Models/PathItem.h"
#include "Views/Controls/SheetDialog.h"

#include <optional>

namespace lanternix {

class AppState;

/// The sheet in which a item is made, or edited when one is given.
class ItemEditorView : public SheetDialog {
  Q_OBJECT

 public:
  ItemEditorView(AppState &appState, std::optional<PathItem> editingItem,
                 std::optional<QUuid> preselectedGroupId, QWidget *window);
};

}  // namespace lanternix
