#include "Views/Settings/ItemEditorView.h"

using namespace Qt::StringLiterals;

namespace lanternix {

ItemEditorView::ItemEditorView(AppState & /*appState*/, std::optional<PathItem> editingItem,
                               std::optional<QUuid> /*preselectedGroupId*/, QWidget *window)
    : SheetDialog(editingItem ? u"Edit Item"_s : u"New Item"_s,
                  editingItem ? u"Save"_s : u"Add Item"_s, {460, 400}, window) {
  connect(this, &SheetDialog::confirmed, this, &QDialog::accept);
}

}  // namespace lanternix
