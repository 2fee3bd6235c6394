#include "Views/Panel/AccessiblePanelRow.h"

#include "App/AppState.h"
#include "Views/Panel/AccessiblePanelList.h"
#include "Views/Panel/ItemRowView.h"
#include "Views/Panel/PanelListModel.h"
#include "Views/Panel/PanelListView.h"
#include "Views/Style/SpokenText.h"

using namespace Qt::StringLiterals;

namespace lanternix {

namespace {

QString itemDescription(const AppState &appState, const PathItem &item) {
  return SpokenText::describing(item,
                                appState.showURLs() ? ItemRowView::displayPath(item) : QString());
}

}  // namespace

AccessiblePanelRow::AccessiblePanelRow(const AccessiblePanelList &list, qsizetype row,
                                       const Identity &identity)
    : m_list(list), m_row(row), m_identity(identity) {}

PanelListView &AccessiblePanelRow::view() const {
  return m_list.view();
}

const PanelListModel &AccessiblePanelRow::model() const {
  return view().model();
}

const PanelRow &AccessiblePanelRow::panelRow() const {
  return model().rows()[m_row];
}

bool AccessiblePanelRow::isValid() const {
  return m_list.isValid() && m_row < model().rows().size();
}

QWindow *AccessiblePanelRow::window() const {
  return m_list.window();
}

QAccessibleInterface *AccessiblePanelRow::parent() const {
  const qsizetype header = isValid() ? m_list.headerOf(m_row) : -1;
  return header < 0 ? QAccessible::queryAccessibleInterface(&view())
                    : m_list.interfaceOfRow(header);
}

int AccessiblePanelRow::childCount() const {
  return isValid() ? static_cast<int>(m_list.rowsBelow(m_row)) : 0;
}

QAccessibleInterface *AccessiblePanelRow::child(int index) const {
  return index >= 0 && index < childCount() ? m_list.interfaceOfRow(m_row + 1 + index) : nullptr;
}

QAccessibleInterface *AccessiblePanelRow::childAt(int /*x*/, int /*y*/) const {
  return nullptr;  // a header's area has none of its rows in it
}

int AccessiblePanelRow::indexOfChild(const QAccessibleInterface *child) const {
  const auto *row = dynamic_cast<const AccessiblePanelRow *>(child);
  const qsizetype index = row == nullptr ? -1 : row->row() - m_row - 1;
  return index >= 0 && index < childCount() ? static_cast<int>(index) : -1;
}

void *AccessiblePanelRow::interface_cast(QAccessible::InterfaceType type) {
  return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface *>(this)
                                              : nullptr;
}

QString AccessiblePanelRow::text(QAccessible::Text kind) const {
  if (!isValid()) {
    return {};
  }
  return kind == QAccessible::Name          ? name()
         : kind == QAccessible::Description ? description()
                                            : QString();
}

QString AccessiblePanelRow::name() const {
  return SpokenText::of(
      model().data(model().index(static_cast<int>(m_row)), Qt::DisplayRole).toString());
}

QString AccessiblePanelRow::description() const {
  if (const PathItem *item = model().itemAt(m_row)) {
    return itemDescription(view().appState(), *item);
  }
  if (panelRow().kind == PanelRow::Kind::emptyGroup) {
    return {};
  }
  const PathGroup *group = model().groupAt(m_row);
  const qsizetype count = group == nullptr
                              ? childCount()
                              : std::ssize(view().appState().itemPositionsForGroup(group->id));
  return count == 1 ? u"1 item"_s : u"%1 items"_s.arg(count);
}

QRect AccessiblePanelRow::rect() const {
  if (!isValid()) {
    return {};
  }
  const QRect row = view().rowRect(m_row);
  return {view().viewport()->mapToGlobal(row.topLeft()), row.size()};
}

QAccessible::Role AccessiblePanelRow::role() const {
  if (!isValid()) {
    return QAccessible::NoRole;
  }
  switch (panelRow().kind) {
    case PanelRow::Kind::recentHeader:
    case PanelRow::Kind::groupHeader:
    case PanelRow::Kind::item:
      return QAccessible::TreeItem;
    case PanelRow::Kind::divider:
      return QAccessible::Separator;
    case PanelRow::Kind::emptyGroup:
      return QAccessible::StaticText;
  }
  Q_UNREACHABLE();
}

QAccessible::State AccessiblePanelRow::state() const {
  QAccessible::State state;
  if (!isValid()) {
    state.invalid = true;
    return state;
  }
  state.invisible = !view().isVisible();
  state.offscreen = !view().viewport()->rect().intersects(view().rowRect(m_row));
  addItemState(state);
  addGroupState(state);
  return state;
}

void AccessiblePanelRow::addItemState(QAccessible::State &state) const {
  const PathItem *item = model().itemAt(m_row);
  if (item == nullptr) {
    return;
  }
  state.selectable = true;
  state.focusable = true;
  state.selected = view().appState().selectedItemId() == item->id;
  // A recent item stands in its group too; the reader is to be in one place only.
  state.focused = state.selected && view().isVisible() && model().rowOfItem(item->id) == m_row;
}

void AccessiblePanelRow::addGroupState(QAccessible::State &state) const {
  const PathGroup *group = model().groupAt(m_row);
  if (group == nullptr || panelRow().kind != PanelRow::Kind::groupHeader) {
    return;
  }
  state.expandable = true;
  state.expanded = group->isExpanded;
  state.collapsed = !group->isExpanded;
}

QStringList AccessiblePanelRow::actionNames() const {
  if (!isValid()) {
    return {};
  }
  if (model().itemAt(m_row) != nullptr) {
    return {pressAction(), setFocusAction()};
  }
  return panelRow().kind == PanelRow::Kind::groupHeader ? QStringList{toggleAction(), pressAction()}
                                                        : QStringList();
}

void AccessiblePanelRow::doAction(const QString &actionName) {
  if (!actionNames().contains(actionName)) {
    return;
  }
  const auto act = [list = &view(), row = m_row, identity = model().identityAt(m_row),
                    selects = actionName != pressAction() && actionName != toggleAction()] {
    // Later the row may stand for something else.
    const PathItem *item = list->model().itemAt(row);
    if (list->model().identityAt(row) != identity) {
      return;
    }
    if (selects && item != nullptr) {
      list->appState().setSelectedItemId(item->id);
    } else {
      list->activate(row);
    }
  };
  QMetaObject::invokeMethod(&view(), act, Qt::QueuedConnection);
}

QStringList AccessiblePanelRow::keyBindingsForAction(const QString & /*actionName*/) const {
  return {};
}

}  // namespace lanternix
