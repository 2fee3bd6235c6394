#include "Views/Settings/ItemListView.h"

#include "Views/Settings/ItemListModel.h"
#include "Views/Settings/ItemRowDelegate.h"

using namespace Qt::StringLiterals;

namespace lanternix {

ItemListView::ItemListView(ItemListModel &model, QWidget *parent)
    : RecordListView(model, u"Items"_s, parent) {
  setItemDelegate(new ItemRowDelegate(model, *this));  // which is its parent
}

}  // namespace lanternix
