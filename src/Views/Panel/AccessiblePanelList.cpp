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

AccessiblePanelRow *rowInterface(QAccessible::Id id) {
  return static_cast<AccessiblePanelRow *>(QAccessible::accessibleInterface(id));
}

}  // namespace

AccessiblePanelList::AccessiblePanelList(PanelListView &view)
    : QAccessibleWidget(&view, QAccessible::Tree), m_view(view) {
  // Whoever asks while the rows are being replaced must not meet what is gone.
  m_aboutToResetConnection =
      QObject::connect(&view.model(), &QAbstractItemModel::modelAboutToBeReset, &view,
                       [this] { m_headers.reset(); });
  m_resetConnection = QObject::connect(&view.model(), &QAbstractItemModel::modelReset, &view,
                                       [this] { followRows(); });
}

AccessiblePanelList::~AccessiblePanelList() {
  QObject::disconnect(m_aboutToResetConnection);
  QObject::disconnect(m_resetConnection);
  for (const QAccessible::Id id : std::exchange(m_interfaces, {})) {
    QAccessible::deleteAccessibleInterface(id);
  }
}

void AccessiblePanelList::followRows() {
  m_headers.reset();
  QMultiHash<AccessiblePanelRow::Identity, QAccessible::Id> left;
  for (const QAccessible::Id id : std::exchange(m_interfaces, {})) {
    if (const AccessiblePanelRow *interface = rowInterface(id)) {
      left.insert(interface->identity(), id);
    }
  }
  const qsizetype count = m_view.model().rows().size();
  for (qsizetype row = 0; row < count && !left.isEmpty(); ++row) {
    if (const QAccessible::Id id = left.take(identityOf(row))) {
      rowInterface(id)->setRow(row);
      m_interfaces.insert(row, id);
    }
  }
  for (const QAccessible::Id gone : std::as_const(left)) {
    QAccessible::deleteAccessibleInterface(gone);
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
  if (const auto made = m_interfaces.constFind(row); made != m_interfaces.cend()) {
    return rowInterface(*made);
  }
  auto *interface = new AccessiblePanelRow(*this, row, identityOf(row));  // owned by Qt's cache
  m_interfaces.insert(row, QAccessible::registerAccessibleInterface(interface));
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
