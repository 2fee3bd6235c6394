#include "Views/Settings/GroupDetailView.h"

#include "App/AppState.h"
#include "Views/Controls/TextColumn.h"
#include "Views/Settings/GroupListModel.h"
#include "Views/Settings/ItemListModel.h"
#include "Views/Settings/ItemRowDelegate.h"
#include "Views/Settings/ListPane.h"
#include "Views/Settings/RecordListView.h"
#include "Views/Style/DisplayText.h"
#include "Views/Style/DividerLine.h"
#include "Views/Style/Symbol.h"
#include "Views/Style/SymbolIcon.h"
#include "Views/Style/SymbolLabel.h"
#include "Views/Style/SystemColors.h"
#include "Views/Style/TextLabel.h"

#include <QtCore/QEvent>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QVBoxLayout>

using namespace Qt::StringLiterals;

namespace lanternix {

namespace {

constexpr int headerSidePadding = 20;
constexpr int headerPadding = 14;
constexpr int headerSpacing = 10;
/// More than any window shows of a name.
constexpr int widestName = 4000;

TextLabel *makeLine(TextStyle style, FillStyle fill, QWidget *parent) {
  auto *label = new TextLabel({}, style, QFont::Normal, fill, parent);
  // As long as there is room, whatever is written on it.
  label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
  return label;
}

}  // namespace

GroupDetailView::GroupDetailView(AppState &appState, QWidget *parent)
    : QWidget(parent),
      m_appState(appState),
      m_model(new ItemListModel(appState, this)),
      m_list(new RecordListView(*m_model, u"Items"_s, this)),
      m_pane(new ListPane(m_list,
                          {.symbol = u"tray"_s,
                           .symbolSide = 36,
                           .title = u"No items in this group"_s,
                           .titleStyle = TextStyle::title3,
                           .hint = u"Add directories, files, or links"_s,
                           .hintStyle = TextStyle::subheadline},
                          this)),
      m_icon(new SymbolLabel({}, TextStyle::title2, &accentColor, this)),
      m_name(makeLine(TextStyle::body, FillStyle::primary, this)),
      m_count(makeLine(TextStyle::caption, FillStyle::secondary, this)),
      m_add(new QPushButton(u"Add Item"_s, this)) {
  m_list->setItemDelegate(new ItemRowDelegate(*m_model, *m_list));  // which is its parent
  auto *layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(0);
  layout->addWidget(makeHeader());
  layout->addWidget(new DividerLine(this));
  layout->addWidget(m_pane, 1);
  setTabOrder(m_add, m_list);

  connect(m_add, &QAbstractButton::clicked, this, &GroupDetailView::itemRequested);
  // The model was made before, so that it has heard of a change already.
  connect(&appState, &AppState::groupsChanged, this, &GroupDetailView::showState);
  connect(&appState, &AppState::itemsChanged, this, &GroupDetailView::showState);
  connect(&appState, &AppState::searchQueryChanged, this, &GroupDetailView::showState);
  updateButton();
}

QWidget *GroupDetailView::makeHeader() {
  auto *header = new QWidget(this);
  m_add->setDefault(true);
  m_add->setIcon(symbolIcon(u"plus"_s));
  auto *layout = new QHBoxLayout(header);
  layout->setContentsMargins(headerSidePadding, headerPadding, headerSidePadding, headerPadding);
  layout->setSpacing(headerSpacing);
  layout->addWidget(m_icon);
  TextColumn::addClose(*layout, {m_name, m_count}, 1);
  layout->addWidget(m_add);
  return header;
}

void GroupDetailView::updateButton() {
  const QFont font = textFont(TextStyle::subheadline);
  const int side = qRound(Symbol::sideFor(font));
  m_add->setFont(font);
  m_add->setIconSize({side, side});
}

void GroupDetailView::changeEvent(QEvent *event) {
  if (event->type() == QEvent::FontChange) {
    updateButton();
  }
  QWidget::changeEvent(event);
}

void GroupDetailView::setGroupId(const std::optional<QUuid> &id) {
  m_list->setSelectedId({});
  m_model->setGroupId(id);
  m_list->scrollToTop();
  showState();
}

void GroupDetailView::showState() {
  const std::optional<QUuid> &id = m_model->groupId();
  const PathGroup *group = id.has_value() ? m_appState.groupWithId(*id) : nullptr;
  if (group == nullptr) {
    return;  // and out of sight
  }
  m_icon->setSymbol(group->iconName, [color = group->color()](const QPalette &palette) {
    return systemColor(color, palette);
  });
  m_name->setText(DisplayText::elided(group->name, m_name->font(), Qt::ElideRight, widestName));
  m_count->setText(GroupListModel::countText(m_model->rowCount()));
  m_pane->setContentShown(m_model->rowCount() > 0);
}

}  // namespace lanternix
