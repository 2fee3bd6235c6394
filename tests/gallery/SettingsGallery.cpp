#include "gallery/SettingsGallery.h"

#include "Views/Style/Palettes.h"
#include "gallery/SettingsStage.h"
#include "support/HarnessError.h"

#include <QtWidgets/QApplication>

#include <functional>
#include <vector>

namespace lanternix {

namespace {

using namespace Qt::StringLiterals;

using Act = std::function<void(SettingsStage &)>;

/// One picture: what it is called, what the user did, how large the user's font is beside the usual
/// one, and what the store holds.
struct SettingsPicture {
  QString name;
  Act act;
  double fontScale = 1;
  QString scene = u"recent"_s;
};

constexpr double largeFont = 1.6;

constexpr int generalTab = 1;
constexpr int dataTab = 2;
constexpr int aboutTab = 3;

/// Shows a tab.
Act tab(int index) {
  return [=](SettingsStage &stage) { stage.showTab(index); };
}

/// Does something with a control of a tab.
Act tab(int index, void (SettingsStage::*work)(const QString &), const QString &control) {
  return [=](SettingsStage &stage) {
    stage.showTab(index);
    (stage.*work)(control);
  };
}

/// Selects a group, and then an item of it.
Act selection(const QStringList &names) {
  return [=](SettingsStage &stage) {
    for (const QString &name : names) {
      stage.select(name);
    }
  };
}

/// Clicks a button beside a selected group.
Act button(const QString &group, const QString &name) {
  return [=](SettingsStage &stage) {
    stage.select(group);
    stage.click(name);
  };
}

/// Chooses an entry from the menu of an item of the group "Work".
Act choice(const QString &item, const QString &entry) {
  return [=](SettingsStage &stage) {
    stage.select(u"Work"_s);
    stage.openMenu(item);
    stage.choose(entry);
  };
}

Act editor(const QString &item) {
  return choice(item, u"Edit Item..."_s);
}

/// Does the rest in a window as small as it can be.
Act smallest(const Act &rest) {
  return [=](SettingsStage &stage) {
    stage.window().resize(stage.window().minimumSize());
    rest(stage);
  };
}

std::vector<SettingsPicture> groupsTab() {
  const QString longName =
      u"Everything that has to do with the move to the new house by the harbour"_s;
  return {
      {u"groups-empty"_s, selection({}), 1, u"no-groups"_s},
      {u"groups-unselected"_s, selection({})},
      {u"groups"_s, selection({u"Home"_s, u"Pictures"_s})},
      {u"groups-broken"_s, selection({u"Home"_s, u"Old notes"_s})},
      {u"groups-large-font"_s, selection({u"Home"_s, u"Old notes"_s}), largeFont},
      {u"groups-long-names"_s, smallest(selection({longName})), 1, u"long-names"_s},
      {u"groups-right-to-left"_s, selection({u"עבודה"_s, u"לוח משימות"_s}), 1, u"long-names"_s},
      {u"groups-without-items"_s, selection({u"Someday"_s})},
      {u"groups-many"_s, selection({u"Group 7"_s}), 1, u"many"_s},
      {u"groups-smallest"_s, smallest(selection({u"Work"_s}))},
  };
}

std::vector<SettingsPicture> otherTabs() {
  return {
      {u"general"_s, tab(generalTab)},
      {u"general-large-font"_s, tab(generalTab), largeFont},
      {u"general-recording"_s, tab(generalTab, &SettingsStage::click, u"Toggle Popup Panel"_s)},
      {u"general-focus"_s, tab(generalTab, &SettingsStage::focus, u"Show Recent Items"_s)},
      {u"data"_s, tab(dataTab)},
      {u"data-large-font"_s, tab(dataTab), largeFont},
      {u"data-focus"_s, tab(dataTab, &SettingsStage::focus, u"Create Backup"_s)},
      {u"data-end"_s,
       [](SettingsStage &stage) {
         stage.showTab(dataTab);
         stage.scrollToEnd();
       }},
      {u"about"_s, tab(aboutTab)},
  };
}

std::vector<SettingsPicture> editorsAndMenus() {
  return {
      {u"group-new"_s, [](SettingsStage &stage) { stage.click(u"Add Group"_s); }},
      {u"group-edit"_s, button(u"Work"_s, u"Edit Group"_s)},
      {u"group-menu"_s, [](SettingsStage &stage) { stage.openMenu(u"Home"_s); }},
      {u"item-new"_s, button(u"Work"_s, u"Add Item"_s)},
      {u"item-edit"_s, editor(u"Contract"_s)},
      {u"item-edit-command"_s, editor(u"Deploy to staging"_s)},
      {u"item-edit-large-font"_s, editor(u"Contract"_s), largeFont},
      {u"item-menu"_s, choice(u"Projects"_s, u"Move to Group"_s)},
  };
}

std::vector<SettingsPicture> alerts() {
  return {
      {u"alert-delete-group"_s, button(u"Work"_s, u"Delete Group"_s)},
      {u"alert-delete-item"_s, choice(u"Contract"_s, u"Delete Item"_s)},
      {u"alert-large-font"_s, choice(u"Contract"_s, u"Delete Item"_s), largeFont},
      {u"alert-export"_s, tab(dataTab, &SettingsStage::click, u"Export..."_s)},
      {u"alert-import"_s, tab(dataTab, &SettingsStage::click, u"Import..."_s)},
      {u"alert-backup"_s, tab(dataTab, &SettingsStage::click, u"Create Backup"_s)},
      {u"alert-restore"_s, tab(dataTab, &SettingsStage::click, u"Restore"_s)},
  };
}

}  // namespace

SettingsGallery::SettingsGallery(QString directory) : m_directory(std::move(directory)) {}

int SettingsGallery::draw() {
  const QFont usual = QApplication::font();
  int count = 0;
  for (const QString &appearance : {u"light"_s, u"dark"_s}) {
    QApplication::setPalette(appearance == u"dark"_s ? Palettes::dark() : Palettes::light());
    for (const auto &part : {groupsTab(), otherTabs(), editorsAndMenus(), alerts()}) {
      for (const SettingsPicture &picture : part) {
        QFont font = usual;
        font.setPointSizeF(usual.pointSizeF() * picture.fontScale);
        QApplication::setFont(font);
        SettingsStage stage(picture.scene);
        picture.act(stage);
        save(stage.picture(), picture.name, appearance);
        ++count;
      }
    }
  }
  QApplication::setFont(usual);
  return count;
}

void SettingsGallery::save(const QPixmap &drawn, const QString &name,
                           const QString &appearance) const {
  const QString path = u"%1/settings-%2-%3-%4x.png"_s.arg(
      m_directory, name, appearance, QString::number(drawn.devicePixelRatio()));
  if (!drawn.save(path)) {
    throw HarnessError(u"the picture cannot be written: "_s + path);
  }
}

}  // namespace lanternix
