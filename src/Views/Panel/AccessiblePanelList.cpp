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

void end(AccessiblePanelRow *interface) {
  QAccessible::deleteAccessibleInterface(QAccessible::uniqueId(interface));
}

}  // namespace

AccessiblePanelList::AccessiblePanelList(PanelListView &view)
    : QAccessibleWidget(&view, QAccessible::Tree), m_view(view) {
  m_resetConnection = QObject::connect(&view.model(), &QAbstractItemModel::modelReset, &view,
                                       [this] { followRows(); });
}

AccessiblePanelList::~AccessiblePanelList() {
  QObject::disconnect(m_resetConnection);
  for (AccessiblePanelRow *row : std::exchange(m_interfaces, {})) {
    end(row);
  }
}

void AccessiblePanelList::followRows() {
  m_headers.reset();
  QMultiHash<AccessiblePanelRow::Identity, AccessiblePanelRow *> left;
  for (AccessiblePanelRow *interface : std::exchange(m_interfaces, {})) {
    left.insert(interface->identity(), interface);
  }
  const qsizetype count = m_view.model().rows().size();
  for (qsizetype row = 0; row < count && !left.isEmpty(); ++row) {
    if (AccessiblePanelRow *moved = left.take(identityOf(row))) {
      moved->setRow(row);
      m_interfaces.insert(row, moved);
    }
  }
  for (AccessiblePanelRow *gone : std::as_const(left)) {
    end(gone);
  }
}

AccessiblePanelRow::Identity AccessiblePanelList::identityOf(qsizetype row) const {
  const PanelListModel &model = m_view.model();
  const QUuid id = model.data(model.index(static_cast<int>(row)), PanelListModel::IdRole).toUuid();
  const QList<PanelRow> &rows = model.rows();
  const bool hasRecent = !rows.isEmpty() && rows.front().kind == PanelRow::Kind::recentHeader;
  return {rows[row].kind, id, hasRecent && (headers().size() < 2 || row < headers()[1])};
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
  AccessiblePanelRow *&interface = m_interfaces[row];
  if (interface == nullptr) {
    interface = new AccessiblePanelRow(*this, row, identityOf(row));  // owned by Qt's cache
    QAccessible::registerAccessibleInterface(interface);
  }
  return interface;
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
