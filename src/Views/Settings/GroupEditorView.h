#pragma once

#include "Models/PathGroup.h"
#include "Views/Controls/SheetDialog.h"

#include <optional>

namespace lanternix {

class AppState;

/// The sheet in which a group is made, or edited when one is given.
class GroupEditorView : public SheetDialog {
  Q_OBJECT

 public:
  GroupEditorView(AppState &appState, std::optional<PathGroup> editingGroup, QWidget *window);
};

}  // namespace lanternix
