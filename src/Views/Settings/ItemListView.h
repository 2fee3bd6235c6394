#pragma once

#include "Views/Settings/RecordListView.h"

namespace lanternix {

class ItemListModel;

/// The list of a group's items.
class ItemListView : public RecordListView {
  Q_OBJECT

 public:
  explicit ItemListView(ItemListModel &model, QWidget *parent = nullptr);
};

}  // namespace lanternix
