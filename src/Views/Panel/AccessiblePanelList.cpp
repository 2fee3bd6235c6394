#include "Views/Panel/AccessiblePanelList.h"

#include "Views/Panel/AccessiblePanelRow.h"
#include "Views/Panel/PanelListModel.h"
#include "Views/Panel/PanelListView.h"

#include <algorithm>
#include <utility>

namespace lanternix {

AccessiblePanelList::AccessiblePanelList(PanelListView &view)
    : QAccessibleWidget(&view, QAccessible::Tree), m_view(view) {
  // Before the reset, so that whoever hears of it already meets the new rows.
  m_resetConnection = QObject::connect(&view.model(), &QAbstractItemModel::modelAboutToBeReset,
                                       &view, [this] { dropRows(); });
}

AccessiblePanelList::~AccessiblePanelList() {
  QObject::disconnect(m_resetConnection);
  dropRows();
}

void AccessiblePanelList::dropRows() {
  m_childRows.reset();
  const QHash<qsizetype, QAccessible::Id> interfaces = std::exchange(m_interfaces, {});
  for (const QAccessible::Id id : interfaces) {
    QAccessible::deleteAccessibleInterface(id);
  }
}

const QList<qsizetype> &AccessiblePanelList::childRows() const {
  if (!m_childRows) {
    m_childRows.emplace();
    const QList<PanelRow> &rows = m_view.model().rows();
    for (qsizetype row = 0; row < rows.size(); ++row) {
      if (rows[row].kind != PanelRow::Kind::divider) {
        m_childRows->append(row);
      }
    }
  }
  return *m_childRows;
}

QAccessibleInterface *AccessiblePanelList::interfaceOfRow(qsizetype row) const {
  if (const auto made = m_interfaces.constFind(row); made != m_interfaces.cend()) {
    return QAccessible::accessibleInterface(*made);
  }
  auto *made = new AccessiblePanelRow(*this, row);  // owned by Qt's cache from the next line on
  m_interfaces.insert(row, QAccessible::registerAccessibleInterface(made));
  return made;
}

int AccessiblePanelList::childCount() const {
  return static_cast<int>(childRows().size());
}

QAccessibleInterface *AccessiblePanelList::child(int index) const {
  return index >= 0 && index < childCount() ? interfaceOfRow(childRows()[index]) : nullptr;
}

QAccessibleInterface *AccessiblePanelList::childAt(int x, int y) const {
  const qsizetype row = m_view.rowAt(m_view.viewport()->mapFromGlobal(QPoint(x, y)));
  const bool isChild = row >= 0 && std::ranges::binary_search(childRows(), row);
  return isChild ? interfaceOfRow(row) : nullptr;
}

int AccessiblePanelList::indexOfChild(const QAccessibleInterface *child) const {
  const auto *row = dynamic_cast<const AccessiblePanelRow *>(child);
  if (row == nullptr || row->parent() != this) {
    return -1;
  }
  const auto place = std::ranges::lower_bound(childRows(), row->row());
  return place == childRows().cend() || *place != row->row()
             ? -1
             : static_cast<int>(place - childRows().cbegin());
}

}  // namespace lanternix
