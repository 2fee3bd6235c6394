#pragma once

#include <QtWidgets/QWidget>

#include <functional>
#include <optional>
#include <vector>

class QStackedWidget;

namespace lanternix {

class AppState;
class FileChooser;
class LoginItem;
class SettingsTabStrip;

/// The settings window: four tabs, each made when it is first shown. It is closed by hiding it and
/// comes back as it was: in its place, with the tab that was shown last.
class SettingsView : public QWidget {
  Q_OBJECT

 public:
  /// \p fileChooser answers wherever a file is to be chosen.
  SettingsView(AppState &appState, LoginItem &loginItem, FileChooser &fileChooser);

  /// Shows the window, or raises it. The keyboard is for the caller to give. Only in answer to an
  /// action of the user.
  void present();

 protected:
  void hideEvent(QHideEvent *event) override;

 private:
  using MakeTab = std::function<QWidget *(QWidget *parent)>;

  void addTab(const QString &symbol, const QString &name, MakeTab make);
  void showTab(int index);
  void showNeighbour(int step);
  void addKeys();

  SettingsTabStrip *m_strip;
  QStackedWidget *m_tabs;
  /// What makes each tab; empty once it has.
  std::vector<MakeTab> m_makers;
  /// Where the window's frame was when it was hidden.
  std::optional<QPoint> m_lastPosition;
};

}  // namespace lanternix
