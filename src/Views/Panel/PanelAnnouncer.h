#pragma once

#include <QtCore/QObject>
#include <QtCore/QUuid>
#include <QtGui/QAccessible>

#include <optional>

namespace lanternix {

class AppState;
class PanelListView;

/// Tells a screen reader what happens in the panel's list: that its rows have changed, and where
/// the selection went, as if the keyboard had gone there, although it stays in the search field.
/// While no reader listens this hears nothing and does nothing; while the panel is hidden it is
/// silent.
class PanelAnnouncer final : public QObject, private QAccessible::ActivationObserver {
  Q_OBJECT

 public:
  PanelAnnouncer(AppState &appState, PanelListView &list, QObject *parent);
  ~PanelAnnouncer() override;

 private:
  void accessibilityActiveChanged(bool active) override;
  void announceSoon();
  void announce();
  void announceRows();
  void announceSelection();
  void announceFocus(QAccessibleInterface *focus);

  AppState &m_appState;
  PanelListView &m_list;
  bool m_isActive = false;
  bool m_isPending = false;
  bool m_rowsChanged = false;
  std::optional<QUuid> m_announcedItemId;
  QAccessible::Id m_announcedRow = 0;  // which may be gone
};

}  // namespace lanternix
