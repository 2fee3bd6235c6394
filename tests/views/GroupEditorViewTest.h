#pragma once

#include "Views/Controls/ChoiceGrid.h"
#include "Views/Settings/GroupEditorView.h"
#include "views/FormTest.h"

#include <memory>
#include <optional>

namespace lanternix {

/// A test of the sheet in which groups are edited.
class GroupEditorViewTest : public FormTest {
 protected:
  std::unique_ptr<AppState> state = makeState();
  QWidget window;

  GroupEditorView *open(const std::optional<PathGroup> &group = {}) {
    present(window);
    auto *editor = new GroupEditorView(*state, group, &window);
    editor->open();
    activate(*editor);
    return editor;
  }

  static QLineEdit *nameField(const QWidget &editor) {
    return named<QLineEdit>(editor, QStringLiteral("Group Name"));
  }

  static ChoiceGrid *grid(const QWidget &editor, const QString &name) {
    return named<ChoiceGrid>(editor, name);
  }
};

}  // namespace lanternix
