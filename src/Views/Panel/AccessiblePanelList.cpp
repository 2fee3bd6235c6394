#include "Views/Panel/AccessiblePanelList.h"

#include "Views/Panel/AccessiblePanelRow.h"
#include "Views/Panel/PanelListModel.h"
#include "Views/Panel/PanelListView.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace lanternix {

namespace {

bool isHeader(const PanelRow &row) {
  return row.kind == PanelRow::Kind::recentHeader || row.kind == PanelRow::Kind::groupHeader;
}

}  // namespace

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
  m_headers.reset();
  const QHash<qsizetype, QAccessible::Id> interfaces = std::exchange(m_interfaces, {});
  for (const QAccessible::Id id : interfaces) {
    QAccessible::deleteAccessibleInterface(id);
  }
}

const QList<qsizetype> &AccessiblePanelList::headers() const {
  if (!m_headers) {
    m_headers.emplace();
    const QList<PanelRow> &rows = m_view.model().rows();
    for (qsizetype row = 0; row < rows.size(); ++row) {
      if (isHeader(rows[row])) {
        m_headers->append(row);
      }
    }
  }
  return *m_headers;
}

qsizetype AccessiblePanelList::headerOf(qsizetype row) const {
  const auto next = std::ranges::upper_bound(headers(), row);
  const qsizetype header = next == headers().cbegin() ? -1 : *std::prev(next);
  return header == row ? -1 : header;
}

qsizetype AccessiblePanelList::rowsBelow(qsizetype header) const {
  const QList<PanelRow> &rows = m_view.model().rows();
  if (!isHeader(rows[header])) {
    return 0;
  }
  const auto next = std::ranges::upper_bound(headers(), header);
  const qsizetype end = next == headers().cend() ? rows.size() : *next;
  const bool endsWithDivider = rows[end - 1].kind == PanelRow::Kind::divider;
  return end - header - (endsWithDivider ? 2 : 1);
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
  return static_cast<int>(headers().size());
}

QAccessibleInterface *AccessiblePanelList::child(int index) const {
  return index >= 0 && index < childCount() ? interfaceOfRow(headers()[index]) : nullptr;
}

QAccessibleInterface *AccessiblePanelList::childAt(int x, int y) const {
  const qsizetype row = m_view.rowAt(m_view.viewport()->mapFromGlobal(QPoint(x, y)));
  const bool isRead = row >= 0 && m_view.model().rows()[row].kind != PanelRow::Kind::divider;
  return isRead ? interfaceOfRow(row) : nullptr;
}

int AccessiblePanelList::indexOfChild(const QAccessibleInterface *child) const {
  const auto *row = dynamic_cast<const AccessiblePanelRow *>(child);
  return row == nullptr ? -1 : static_cast<int>(headers().indexOf(row->row()));
}

}  // namespace lanternix
