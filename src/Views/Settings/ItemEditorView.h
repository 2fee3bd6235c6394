#pragma once

#include "Models/PathItem.h"
#include "Views/Controls/SheetDialog.h"

#include <optional>

class QLabel;
class QPushButton;

namespace lanternix {

class AppState;
class FileChooser;
class FormSection;
class GroupPicker;
class TextField;

/// The sheet in which an item is made or edited: its type (only while it is made), its name, its
/// path, and the group it belongs to.
class ItemEditorView : public SheetDialog {
  Q_OBJECT

 public:
  /// Without \p editingItem the sheet makes a new item, in the group with \p preselectedGroupId
  /// unless the user chooses another. \p fileChooser answers "Browse...".
  ItemEditorView(AppState &appState, FileChooser &fileChooser, std::optional<PathItem> editingItem,
                 std::optional<QUuid> preselectedGroupId, QWidget *window);

 private:
  void addTypeRow(FormSection &section);
  /// By the user, who may pass a type on the way to another.
  void chooseType(ItemType type);
  void setSelectedType(ItemType type);
  void browseForPath();
  void setChosenPath(const QString &path);
  QString trimmedName() const;
  QString trimmedPath() const;
  bool isValid() const;
  void save();

  AppState &m_appState;
  FileChooser &m_fileChooser;
  std::optional<PathItem> m_editingItem;
  ItemType m_selectedType;
  TextField *m_name;
  QLabel *m_pathTitle;
  TextField *m_path;
  QPushButton *m_browse;
  GroupPicker *m_group;
  /// A command of several lines that another type has made one line of, to be had back.
  struct LeftCommand {
    QString lines;
    QString line;
  };
  LeftCommand m_leftCommand;
};

}  // namespace lanternix
