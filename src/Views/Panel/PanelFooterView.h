#pragma once

#include <QtWidgets/QWidget>

namespace lanternix {

class AppState;
class KeyHintView;
class ScopeBadgeView;
class TextLabel;

/// The panel's bottom: what Escape and the shortcut do, the scope of the search while there is one,
/// and the number of all items.
class PanelFooterView : public QWidget {
  Q_OBJECT

 public:
  explicit PanelFooterView(AppState &appState, QWidget *parent = nullptr);

 private:
  void updateScope();
  void updateCount();
  void updateShortcut();

  AppState &m_appState;
  KeyHintView *m_toggleHint;
  ScopeBadgeView *m_scope;
  TextLabel *m_count;
};

}  // namespace lanternix
