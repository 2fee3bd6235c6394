#pragma once

#include "Models/PathGroup.h"
#include "Views/Controls/SheetDialog.h"

#include <optional>

namespace lanternix {

class AppState;
class TextField;

/// The sheet in which a group is made or edited: its name, its symbol and its colour.
class GroupEditorView : public SheetDialog {
  Q_OBJECT

 public:
  /// Without \p editingGroup the sheet makes a new group.
  GroupEditorView(AppState &appState, std::optional<PathGroup> editingGroup, QWidget *window);

 private:
  void addNameSection();
  void addIconSection();
  void addColorSection();
  QString trimmedName() const;
  void updateConfirmable();
  void save();

  AppState &m_appState;
  std::optional<PathGroup> m_editingGroup;
  TextField *m_name;
  // Any text: what is stored need not be among the choices, and stays unless the user picks one.
  QString m_selectedIcon;
  QString m_selectedColor;
};

}  // namespace lanternix
