#pragma once

#include "Views/Settings/ItemEditorView.h"
#include "views/FormTest.h"

#include <QtWidgets/QComboBox>

#include <memory>
#include <optional>

namespace lanternix {

/// A test of the sheet in which items are edited.
class ItemEditorViewTest : public FormTest {
 protected:
  PathGroup work = group(QStringLiteral("Work"), 1);
  PathGroup play = group(QStringLiteral("Play"), 0);
  std::unique_ptr<AppState> state = makeState({work, play}, {});
  QWidget window;

  ItemEditorView *open(const std::optional<PathItem> &item, const std::optional<QUuid> &groupId) {
    present(window);
    auto *editor = new ItemEditorView(*state, fileChooser, item, groupId, &window);
    editor->open();
    activate(*editor);
    return editor;
  }

  ItemEditorView *openNew() { return open({}, work.id); }

  ItemEditorView *openEditing(const PathItem &item) {
    state = makeState({work, play}, {item});
    return open(item, {});
  }

  static QLineEdit *field(const QWidget &editor, const QString &name) {
    return named<QLineEdit>(editor, name);
  }
  static QComboBox *picker(const QWidget &editor, const QString &name) {
    return named<QComboBox>(editor, name);
  }
  static void fill(const QWidget &editor, const QString &name, const QString &path) {
    field(editor, QStringLiteral("Name"))->setText(name);
    field(editor, QStringLiteral("Path"))->setText(path);
  }
  static QStringList entries(const QComboBox &box) {
    QStringList result;
    for (int i = 0; i < box.count(); ++i) {
      result.append(box.itemText(i));
    }
    return result;
  }
  PathItem typed(ItemType type) {
    PathItem result = item(QStringLiteral("Thing"), work, 3, QStringLiteral("/tmp"));
    result.type = type;
    result.dateAdded = Date{12.5};
    result.lastAccessed = Date{99};
    return result;
  }
};

}  // namespace lanternix
