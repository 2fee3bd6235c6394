#include "Views/Settings/ItemEditorView.h"

#include "App/AppState.h"
#include "Models/Blanks.h"
#include "Views/Controls/FormSection.h"
#include "Views/Controls/FormView.h"
#include "Views/Controls/TextField.h"
#include "Views/Settings/FileChooser.h"
#include "Views/Settings/GroupPicker.h"
#include "Views/Style/SymbolIcon.h"
#include "Views/Style/TextLabel.h"

#include <QtWidgets/QComboBox>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>

#include <memory>
#include <utility>

using namespace Qt::StringLiterals;

namespace lanternix {

namespace {

constexpr QSize sheetSize{440, 320};
constexpr int titleWidth = 84;

TextLabel *makeTitle(const QString &text, QWidget *parent) {
  auto *title = new TextLabel(text, TextStyle::body, QFont::Normal, FillStyle::primary, parent);
  title->setMinimumWidth(titleWidth);
  return title;
}

/// A row of \p title and what fills the rest of the line. Being taken out of the row's own window
/// puts the controls of each row behind those of the one before, where the Tab key goes.
std::unique_ptr<QWidget> makeRow(QLabel *title, QWidget *control, QWidget *button = nullptr) {
  // Readers call a list of choices by its label: its name is the choice itself.
  title->setBuddy(control);
  auto row = std::make_unique<QWidget>();
  auto *layout = new QHBoxLayout(row.get());
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(title);
  layout->addWidget(control, 1);
  if (button != nullptr) {
    layout->addWidget(button);
  }
  return row;
}

QString lastComponent(const QString &path) {
  QStringView rest = path;
  while (rest.size() > 1 && rest.endsWith(u'/')) {
    rest.chop(1);
  }
  return rest.size() == 1 ? rest.toString() : rest.sliced(rest.lastIndexOf(u'/') + 1).toString();
}

}  // namespace

ItemEditorView::ItemEditorView(AppState &appState, FileChooser &fileChooser,
                               std::optional<PathItem> editingItem,
                               std::optional<QUuid> preselectedGroupId, QWidget *window)
    : SheetDialog(editingItem ? u"Edit Item"_s : u"New Item"_s,
                  editingItem ? u"Save"_s : u"Add Item"_s, sheetSize, window),
      m_appState(appState),
      m_fileChooser(fileChooser),
      m_editingItem(std::move(editingItem)),
      m_selectedType(m_editingItem ? m_editingItem->type : ItemType::directory),
      m_name(new TextField(u"Name"_s, this)),
      m_pathTitle(makeTitle({}, this)),
      m_path(new TextField({}, this)),
      m_browse(new QPushButton(u"Browse..."_s, this)),
      m_group(new GroupPicker(
          appState, m_editingItem ? std::optional(m_editingItem->groupId) : preselectedGroupId,
          this)) {
  FormSection &section = form().addSection({});
  if (m_editingItem) {
    m_name->setStoredText(m_editingItem->name);
    m_path->setStoredText(m_editingItem->path);
    m_path->home(false);  // a long one is read from its beginning
  } else {
    addTypeRow(section);
  }
  section.addRow(makeRow(makeTitle(u"Name"_s, this), m_name).release());
  section.addRow(makeRow(m_pathTitle, m_path, m_browse).release());
  section.addRow(makeRow(makeTitle(u"Group"_s, this), m_group).release());
  setSelectedType(m_selectedType);

  connect(m_browse, &QPushButton::clicked, this, &ItemEditorView::browseForPath);
  const auto updateConfirmable = [this] { setConfirmable(isValid()); };
  connect(m_name, &QLineEdit::textChanged, this, updateConfirmable);
  connect(m_path, &QLineEdit::textChanged, this, updateConfirmable);
  connect(m_group, &GroupPicker::selectedGroupIdChanged, this, updateConfirmable);
  connect(this, &SheetDialog::confirmed, this, &ItemEditorView::save);
  updateConfirmable();
  m_name->setFocus();
}

void ItemEditorView::addTypeRow(FormSection &section) {
  auto *picker = new QComboBox(this);
  picker->setAccessibleName(u"Type"_s);
  for (const ItemType type : allItemTypes) {
    picker->addItem(symbolIcon(systemImage(type)), displayName(type));
  }
  connect(picker, &QComboBox::currentIndexChanged, this,
          [this](int index) { chooseType(allItemTypes.at(static_cast<std::size_t>(index))); });
  section.addRow(makeRow(makeTitle(u"Type"_s, this), picker).release());
}

void ItemEditorView::chooseType(ItemType type) {
  const QString text = m_path->text();
  const bool wasCommand = m_selectedType == ItemType::command;
  setSelectedType(type);
  if (wasCommand) {
    // It may be of several lines. The field looks only at a text that is new to it.
    m_path->clear();
    m_path->setText(text);
    m_leftCommand = {.lines = text, .line = m_path->text()};
  } else if (type == ItemType::command && text == m_leftCommand.line) {
    m_path->setText(m_leftCommand.lines);
  }
}

void ItemEditorView::setSelectedType(ItemType type) {
  m_selectedType = type;
  const QString title = locationName(type);
  m_pathTitle->setText(title);
  m_path->setAccessibleName(title);
  // A command of several lines is one to the shell, too, and another one in a single line.
  m_path->setKeepsLineBreaks(type == ItemType::command);
  m_path->setMonospaced(type == ItemType::command);
  m_browse->setVisible(type == ItemType::directory || type == ItemType::file);
}

void ItemEditorView::browseForPath() {
  const bool isDirectory = m_selectedType == ItemType::directory;
  const FileChooser::Request request{
      .kind = isDirectory ? FileChooser::Kind::directory : FileChooser::Kind::file,
      .title = isDirectory ? u"Choose a Directory"_s : u"Choose a File"_s,
      .nameFilters = {},
      .start = trimmedPath()};
  m_fileChooser.choose(request, this, [this](const QString &path) { setChosenPath(path); });
}

void ItemEditorView::setChosenPath(const QString &path) {
  m_path->setStoredText(path);
  if (trimmedName().isEmpty()) {
    m_name->setStoredText(lastComponent(path));
  }
}

QString ItemEditorView::trimmedName() const {
  return trimmedBlanks(m_name->text()).toString();
}

QString ItemEditorView::trimmedPath() const {
  return trimmedBlanks(m_path->text()).toString();
}

bool ItemEditorView::isValid() const {
  return !trimmedName().isEmpty() && !trimmedPath().isEmpty() &&
         m_group->selectedGroupId().has_value();
}

void ItemEditorView::save() {
  if (!isValid()) {
    return;
  }
  const QUuid groupId = *m_group->selectedGroupId();
  if (m_editingItem) {
    // Of the item as it is by now: the panel may have opened it meanwhile.
    const PathItem *present = m_appState.itemWithId(m_editingItem->id);
    PathItem item = present != nullptr ? *present : *m_editingItem;
    item.name = trimmedName();
    item.path = trimmedPath();
    item.type = m_selectedType;
    item.groupId = groupId;
    m_appState.updateItem(item);
  } else {
    m_appState.addItem({QUuid::createUuid(), trimmedName(), trimmedPath(), m_selectedType, groupId,
                        m_appState.now(), std::nullopt, 0});
  }
  accept();
}

}  // namespace lanternix
