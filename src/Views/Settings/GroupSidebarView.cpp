#include "Views/Settings/GroupSidebarView.h"

#include "App/AppState.h"
#include "Views/Settings/GroupListModel.h"
#include "Views/Settings/GroupListView.h"
#include "Views/Settings/ListPane.h"
#include "Views/Style/DividerLine.h"
#include "Views/Style/SymbolButton.h"

#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QVBoxLayout>

using namespace Qt::StringLiterals;

namespace lanternix {

namespace {

constexpr int smallestWidth = 200;
constexpr int idealWidth = 240;
constexpr int greatestWidth = 300;
constexpr int barSidePadding = 10;
constexpr int barPadding = 8;
constexpr int barSpacing = 8;
constexpr QSize buttonSize{26, 18};

SymbolButton *makeButton(const QString &symbol, const QString &name, QWidget *parent) {
  auto *button = new SymbolButton(symbol, TextStyle::body, FillStyle::secondary, name, parent);
  button->setMinimumSize(buttonSize);
  return button;
}

}  // namespace

GroupSidebarView::GroupSidebarView(AppState &appState, QWidget *parent)
    : QWidget(parent),
      m_appState(appState),
      m_model(new GroupListModel(appState, this)),
      m_list(new GroupListView(appState, *m_model, this)),
      m_pane(new ListPane(m_list,
                          {.symbol = u"folder.badge.plus"_s,
                           .symbolSide = 32,
                           .title = u"No groups yet"_s,
                           .titleStyle = TextStyle::subheadline,
                           .hint = u"Create a group to organize your items"_s,
                           .hintStyle = TextStyle::caption},
                          this)),
      m_edit(makeButton(u"pencil"_s, u"Edit Group"_s, this)),
      m_delete(makeButton(u"minus"_s, u"Delete Group"_s, this)) {
  setMinimumWidth(smallestWidth);
  setMaximumWidth(greatestWidth);
  auto *layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(0);
  layout->addWidget(m_pane, 1);
  layout->addWidget(new DividerLine(this));
  layout->addWidget(makeBar());
  resize(idealWidth, height());

  connect(&appState, &AppState::groupsChanged, this, &GroupSidebarView::showState);
  connect(m_list, &RecordListView::selectedIdChanged, this, &GroupSidebarView::showState);
  connect(m_list, &RecordListView::editRequested, this, &GroupSidebarView::editRequested);
  connect(m_list, &RecordListView::deletionRequested, this, &GroupSidebarView::deletionRequested);
  showState();
}

QWidget *GroupSidebarView::makeBar() {
  auto *bar = new QWidget(this);
  auto *add = makeButton(u"plus"_s, u"Add Group"_s, bar);
  auto *layout = new QHBoxLayout(bar);
  layout->setContentsMargins(barSidePadding, barPadding, barSidePadding, barPadding);
  layout->setSpacing(barSpacing);
  layout->addWidget(add);
  layout->addWidget(m_edit);
  layout->addWidget(m_delete);
  layout->addStretch();
  setTabOrder(m_list, add);
  setTabOrder(add, m_edit);
  setTabOrder(m_edit, m_delete);
  connect(add, &QAbstractButton::clicked, this, &GroupSidebarView::groupRequested);
  connect(m_edit, &QAbstractButton::clicked, this, [this] {
    if (const std::optional<QUuid> id = m_list->selectedId()) {
      Q_EMIT editRequested(*id);
    }
  });
  connect(m_delete, &QAbstractButton::clicked, this, [this] {
    if (const std::optional<QUuid> id = m_list->selectedId()) {
      Q_EMIT deletionRequested(*id);
    }
  });
  return bar;
}

void GroupSidebarView::showState() {
  m_pane->setContentShown(!m_appState.groups().isEmpty());
  m_edit->setEnabled(m_list->selectedId().has_value());
  m_delete->setEnabled(m_list->selectedId().has_value());
}

}  // namespace lanternix
