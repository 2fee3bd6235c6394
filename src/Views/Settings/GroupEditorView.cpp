#include "Views/Settings/GroupEditorView.h"

#include "App/AppState.h"
#include "Models/Blanks.h"
#include "Views/Controls/ChoiceGrid.h"
#include "Views/Controls/FormSection.h"
#include "Views/Controls/FormView.h"
#include "Views/Controls/TextField.h"
#include "Views/Settings/ColorCell.h"
#include "Views/Settings/SymbolCell.h"

#include <algorithm>
#include <array>
#include <utility>

using namespace Qt::StringLiterals;

namespace lanternix {

namespace {

constexpr QSize sheetSize{420, 480};

/// What the data call it, and what a person does.
struct Choice {
  QLatin1StringView name;
  QLatin1StringView spoken;
};

constexpr std::array iconChoices{
    Choice{"folder"_L1, "Folder"_L1},
    Choice{"folder.fill"_L1, "Filled Folder"_L1},
    Choice{"briefcase"_L1, "Briefcase"_L1},
    Choice{"briefcase.fill"_L1, "Filled Briefcase"_L1},
    Choice{"hammer"_L1, "Hammer"_L1},
    Choice{"hammer.fill"_L1, "Filled Hammer"_L1},
    Choice{"wrench"_L1, "Wrench"_L1},
    Choice{"wrench.fill"_L1, "Filled Wrench"_L1},
    Choice{"globe"_L1, "Globe"_L1},
    Choice{"globe.americas"_L1, "Globe of the Americas"_L1},
    Choice{"book"_L1, "Book"_L1},
    Choice{"book.fill"_L1, "Filled Book"_L1},
    Choice{"star"_L1, "Star"_L1},
    Choice{"star.fill"_L1, "Filled Star"_L1},
    Choice{"heart"_L1, "Heart"_L1},
    Choice{"heart.fill"_L1, "Filled Heart"_L1},
    Choice{"gamecontroller"_L1, "Game Controller"_L1},
    Choice{"gamecontroller.fill"_L1, "Filled Game Controller"_L1},
    Choice{"music.note"_L1, "Note"_L1},
    Choice{"photo"_L1, "Photo"_L1},
    Choice{"doc.text"_L1, "Document"_L1},
    Choice{"terminal"_L1, "Terminal"_L1},
    Choice{"chevron.left.forwardslash.chevron.right"_L1, "Code"_L1},
    Choice{"cpu"_L1, "Processor"_L1},
    Choice{"desktopcomputer"_L1, "Computer"_L1},
    Choice{"display"_L1, "Display"_L1},
    Choice{"externaldrive"_L1, "Drive"_L1},
    Choice{"gearshape"_L1, "Gear"_L1},
    Choice{"person"_L1, "Person"_L1},
    Choice{"house"_L1, "House"_L1},
    Choice{"building.2"_L1, "Buildings"_L1},
};

constexpr std::array colorChoices{
    Choice{"red"_L1, "Red"_L1},       Choice{"orange"_L1, "Orange"_L1},
    Choice{"yellow"_L1, "Yellow"_L1}, Choice{"green"_L1, "Green"_L1},
    Choice{"blue"_L1, "Blue"_L1},     Choice{"purple"_L1, "Purple"_L1},
    Choice{"pink"_L1, "Pink"_L1},     Choice{"indigo"_L1, "Indigo"_L1},
    Choice{"teal"_L1, "Teal"_L1},
};

/// -1 for a name that is none of the choices.
template <std::size_t count>
int indexOf(const std::array<Choice, count> &choices, const QString &name) {
  const auto found = std::ranges::find(choices, name, &Choice::name);
  return found == choices.end() ? -1 : static_cast<int>(found - choices.begin());
}

SystemColor colorForName(const QString &name) {
  PathGroup group;
  group.colorName = name;
  return group.color();
}

}  // namespace

GroupEditorView::GroupEditorView(AppState &appState, std::optional<PathGroup> editingGroup,
                                 QWidget *window)
    : SheetDialog(editingGroup ? u"Edit Group"_s : u"New Group"_s,
                  editingGroup ? u"Save"_s : u"Add Group"_s, sheetSize, window),
      m_appState(appState),
      m_editingGroup(std::move(editingGroup)),
      m_name(new TextField(u"Group Name"_s, this)),
      m_selectedIcon(m_editingGroup ? m_editingGroup->iconName : u"folder"_s),
      m_selectedColor(m_editingGroup ? m_editingGroup->colorName : u"blue"_s) {
  addNameSection();
  addIconSection();
  addColorSection();
  connect(m_name, &QLineEdit::textChanged, this, &GroupEditorView::updateConfirmable);
  connect(this, &SheetDialog::confirmed, this, &GroupEditorView::save);
  updateConfirmable();
  m_name->setFocus();
}

void GroupEditorView::addNameSection() {
  m_name->setPlaceholderText(u"Group Name"_s);
  if (m_editingGroup) {
    m_name->setStoredText(m_editingGroup->name);
  }
  form().addSection({}).addRow(m_name);
}

void GroupEditorView::addIconSection() {
  auto *grid = new ChoiceGrid(u"Icon"_s, {.narrowestColumn = 36, .cellRadius = 6}, this);
  for (const Choice &choice : iconChoices) {
    grid->addCell(new SymbolCell(choice.name, choice.spoken, grid));
  }
  grid->setCurrentIndex(indexOf(iconChoices, m_selectedIcon));
  connect(grid, &ChoiceGrid::currentIndexChanged, this, [this](int index) {
    m_selectedIcon = iconChoices.at(static_cast<std::size_t>(index)).name;
  });
  form().addSection(u"Icon"_s).addRow(grid);
}

void GroupEditorView::addColorSection() {
  auto *grid = new ChoiceGrid(u"Color"_s,
                              {.narrowestColumn = 24, .cellRadius = 12, .fillsWidth = false}, this);
  for (const Choice &choice : colorChoices) {
    grid->addCell(new ColorCell(colorForName(choice.name), choice.spoken, grid));
  }
  grid->setCurrentIndex(indexOf(colorChoices, m_selectedColor));
  connect(grid, &ChoiceGrid::currentIndexChanged, this, [this](int index) {
    m_selectedColor = colorChoices.at(static_cast<std::size_t>(index)).name;
  });
  form().addSection(u"Color"_s).addRow(grid);
}

QString GroupEditorView::trimmedName() const {
  return trimmedBlanks(m_name->text()).toString();
}

void GroupEditorView::updateConfirmable() {
  setConfirmable(!trimmedName().isEmpty());
}

void GroupEditorView::save() {
  const QString name = trimmedName();
  if (name.isEmpty()) {
    return;
  }
  if (m_editingGroup) {
    // Of the group as it is by now: the panel may have folded it meanwhile.
    const PathGroup *present = m_appState.groupWithId(m_editingGroup->id);
    PathGroup group = present != nullptr ? *present : *m_editingGroup;
    group.name = name;
    group.iconName = m_selectedIcon;
    group.colorName = m_selectedColor;
    m_appState.updateGroup(group);
  } else {
    m_appState.addGroup({QUuid::createUuid(), name, m_selectedIcon, m_selectedColor, 0, true});
  }
  accept();
}

}  // namespace lanternix
