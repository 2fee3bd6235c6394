#include "Views/Settings/GroupListView.h"

#include "App/AppState.h"
#include "Views/Settings/DragPayload.h"
#include "Views/Settings/GroupListModel.h"
#include "Views/Settings/GroupRowDelegate.h"

using namespace Qt::StringLiterals;

namespace lanternix {

GroupListView::GroupListView(AppState &appState, GroupListModel &model, QWidget *parent)
    : RecordListView(model, u"Groups"_s, parent), m_appState(appState) {
  setItemDelegate(new GroupRowDelegate(model, *this));  // which is its parent
}

bool GroupListView::takesOnRow(const QMimeData &payload) const {
  return DragPayload::hasPlainText(payload);
}

void GroupListView::dropOnRow(const QMimeData &payload, const QUuid &id) {
  if (const std::optional<QUuid> item = DragPayload::idInPlainText(payload)) {
    m_appState.moveItem(*item, id);
  }
}

}  // namespace lanternix
