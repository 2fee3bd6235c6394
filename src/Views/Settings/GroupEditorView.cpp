#include "Views/Settings/GroupEditorView.h"

using namespace Qt::StringLiterals;

namespace lanternix {

GroupEditorView::GroupEditorView(AppState & /*appState*/, std::optional<PathGroup> editingGroup,
                                 QWidget *window)
    : SheetDialog(editingGroup ? u"Edit Group"_s : u"New Group"_s,
                  editingGroup ? u"Save"_s : u"Add Group"_s, {420, 480}, window) {
  connect(this, &SheetDialog::confirmed, this, &QDialog::accept);
}

}  // namespace lanternix
