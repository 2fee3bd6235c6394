#pragma once

#include "Platform/LoginItem.h"
#include "Views/Settings/SettingsView.h"
#include "support/FakeFileChooser.h"
#include "support/StoreFixture.h"

#include <QtGui/QPixmap>

#include <memory>

class QAbstractButton;
class QListView;

namespace lanternix {

/// The settings over a store with files of its own, and the hand that works them for a picture.
/// Wherever a file is to be chosen, an exported one is chosen at once.
class SettingsStage {
 public:
  /// \p scene is one of PanelScene's.
  explicit SettingsStage(const QString &scene);

  SettingsView &window() { return *m_window; }
  void showTab(int index);
  /// Selects the row that is called so.
  void select(const QString &name);
  /// Opens the menu of the row that is called so.
  void openMenu(const QString &name);
  /// Chooses from the menu that is open; with a submenu, opens that.
  void choose(const QString &entry);
  /// Clicks the button that is labelled, or called, so.
  void click(const QString &name);
  /// Puts the keyboard there as the Tab key does.
  void focus(const QString &name);
  /// Brings the end of the tab into sight.
  void scrollToEnd();

  /// The window, with the dialogs and menus that are open over it.
  QPixmap picture() const;

 private:
  class RegisteredLoginItem : public NullLoginItem {
   public:
    Status status() const override { return Status::enabled; }
  };

  void writeBackups() const;
  QAbstractButton &button(const QString &name) const;
  QListView &listWith(const QString &name, int &row) const;

  StoreFixture m_store;
  FakeFileChooser m_fileChooser;
  RegisteredLoginItem m_loginItem;
  std::unique_ptr<AppState> m_state;
  std::unique_ptr<SettingsView> m_window;
};

}  // namespace lanternix
