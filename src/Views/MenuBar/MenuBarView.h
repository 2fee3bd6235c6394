#pragma once

#include "Models/ItemType.h"

#include <QtCore/QUuid>
#include <QtWidgets/QMenu>

namespace lanternix {

class AppState;
struct PathItem;

/// The menu of the program's icon in the tray: the items opened last, the panel, the settings, the
/// end. It follows the recent items, shown or not, because a desktop that draws the menu itself
/// keeps what it was sent.
class MenuBarView : public QMenu {
  Q_OBJECT

 public:
  /// Whoever draws the menu has characters of its own that mark access keys in a text. Names have
  /// none.
  enum class DrawnBy { program, desktop };

  MenuBarView(AppState &appState, DrawnBy drawnBy, QWidget *parent = nullptr);

 Q_SIGNALS:
  void quitRequested();

 protected:
  void changeEvent(QEvent *event) override;

 private:
  /// What the menu shows of an item.
  struct Entry {
    QUuid id;
    QString label;
    ItemType type;

    friend bool operator==(const Entry &, const Entry &) = default;
  };

  template <typename Handler>
  QAction *makeAction(const QString &text, Handler handler);
  void addFixedEntries();
  void updateRecentItems();
  void replaceRecentItems(const QList<Entry> &entries);
  void open(const QUuid &itemId);
  QString label(const QString &name) const;

  AppState &m_appState;
  const DrawnBy m_drawnBy;
  QAction *m_showPanel = nullptr;
  QList<Entry> m_recentEntries;
  QList<QAction *> m_recentActions;  // with their title and their divider
};

}  // namespace lanternix
