#pragma once

#include <QtCore/QUuid>
#include <QtWidgets/QMenu>

namespace lanternix {

class AppState;
struct PathItem;

/// The menu of an item in the list of its group. Whatever is chosen happens to the item as it is by
/// then, and to nothing when it is gone.
class ItemRowMenu : public QMenu {
  Q_OBJECT

 public:
  ItemRowMenu(AppState &appState, const PathItem &item, QWidget *parent);

 Q_SIGNALS:
  void editRequested(const QUuid &id);
  void deletionRequested(const QUuid &id);

 private:
  void addGroups(const PathItem &item);

  AppState &m_appState;
};

}  // namespace lanternix
