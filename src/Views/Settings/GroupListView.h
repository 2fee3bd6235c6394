#pragma once

#include "Views/Settings/RecordListView.h"

namespace lanternix {

class AppState;
class GroupListModel;

/// The list of groups. A row takes plain text that is dragged onto it: the id of an item moves that
/// item into the group, any other text changes nothing.
class GroupListView : public RecordListView {
  Q_OBJECT

 public:
  GroupListView(AppState &appState, GroupListModel &model, QWidget *parent = nullptr);

 protected:
  bool takesOnRow(const QMimeData &payload) const override;
  void dropOnRow(const QMimeData &payload, const QUuid &id) override;

 private:
  AppState &m_appState;
};

}  // namespace lanternix
