#include "Views/Panel/PanelAnnouncer.h"

#include "App/AppState.h"
#include "Views/Panel/AccessiblePanelList.h"
#include "Views/Panel/PanelListModel.h"
#include "Views/Panel/PanelListView.h"

#include <QtWidgets/QApplication>

#include <utility>

namespace lanternix {

PanelAnnouncer::PanelAnnouncer(AppState &appState, PanelListView &list, QObject *parent)
    : QObject(parent), m_appState(appState), m_list(list) {
  QAccessible::installActivationObserver(this);
  accessibilityActiveChanged(QAccessible::isActive());
}

PanelAnnouncer::~PanelAnnouncer() {
  QAccessible::removeActivationObserver(this);
}

void PanelAnnouncer::accessibilityActiveChanged(bool active) {
  if (std::exchange(m_isActive, active) == active) {
    return;
  }
  if (!active) {
    m_appState.disconnect(this);
    m_list.model().disconnect(this);
    return;
  }
  connect(&m_appState, &AppState::selectedItemIdChanged, this, &PanelAnnouncer::announceSoon);
  // What has changed while the panel was hidden is told of when it is shown.
  connect(&m_appState, &AppState::isPanelVisibleChanged, this, &PanelAnnouncer::announceSoon);
  connect(&m_list.model(), &QAbstractItemModel::modelReset, this, [this] {
    m_rowsChanged = true;
    announceSoon();
  });
}

// Later, so that a letter is told of as the field tells it: the text, the caret, and only then what
// it found. Whatever changes at once is told of once.
void PanelAnnouncer::announceSoon() {
  if (!std::exchange(m_isPending, true)) {
    QMetaObject::invokeMethod(this, &PanelAnnouncer::announce, Qt::QueuedConnection);
  }
}

void PanelAnnouncer::announce() {
  m_isPending = false;
  if (!m_isActive || !m_appState.isPanelVisible()) {
    m_announcedItemId.reset();
    return;
  }
  if (std::exchange(m_rowsChanged, false)) {
    announceRows();
  }
  announceSelection();
}

void PanelAnnouncer::announceRows() {
  // Tells of every branch anew; what is below them is asked for when it is wanted.
  QAccessibleEvent event(&m_list, QAccessible::ObjectReorder);
  QAccessible::updateAccessibility(&event);
}

void PanelAnnouncer::announceSelection() {
  const std::optional<QUuid> selected = m_appState.selectedItemId();
  if (std::exchange(m_announcedItemId, selected) == selected) {
    return;
  }
  const QAccessible::Id leftRow = std::exchange(m_announcedRow, 0);
  if (QAccessibleInterface *left =
          leftRow == 0 ? nullptr : QAccessible::accessibleInterface(leftRow)) {
    QAccessibleEvent event(left, QAccessible::Selection);
    QAccessible::updateAccessibility(&event);
  }
  const auto *list =
      dynamic_cast<AccessiblePanelList *>(QAccessible::queryAccessibleInterface(&m_list));
  const qsizetype row = selected ? m_list.model().rowOfItem(*selected) : -1;
  if (list != nullptr && row >= 0) {
    QAccessibleInterface *entered = list->interfaceOfRow(row);
    m_announcedRow = QAccessible::uniqueId(entered);
    QAccessibleEvent event(entered, QAccessible::Selection);
    QAccessible::updateAccessibility(&event);
    announceFocus(entered);
  } else if (QWidget *field = QApplication::focusWidget()) {
    announceFocus(QAccessible::queryAccessibleInterface(field));
  }
}

void PanelAnnouncer::announceFocus(QAccessibleInterface *focus) {
  QAccessibleEvent event(focus, QAccessible::Focus);
  QAccessible::updateAccessibility(&event);
}

}  // namespace lanternix
