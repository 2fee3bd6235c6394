#include "gallery/SettingsGallery.h"

#include "Views/Style/Palettes.h"
#include "gallery/SettingsStage.h"
#include "support/HarnessError.h"

#include <QtWidgets/QApplication>

#include <vector>

namespace lanternix {

namespace {

using namespace Qt::StringLiterals;

/// One picture: what it is called, what the store holds, and what the user did.
struct SettingsPicture {
  QString name;
  QString scene;
  void (*act)(SettingsStage &stage);
};

constexpr int generalTab = 1;
constexpr int dataTab = 2;
constexpr int aboutTab = 3;

std::vector<SettingsPicture> tabs() {
  return {
      {u"groups-empty"_s, u"no-groups"_s, [](SettingsStage &) {}},
      {u"groups-unselected"_s, u"recent"_s, [](SettingsStage &) {}},
      {u"groups"_s, u"recent"_s,
       [](SettingsStage &stage) {
         stage.select(u"Home"_s);
         stage.select(u"Pictures"_s);
       }},
      {u"groups-without-items"_s, u"recent"_s,
       [](SettingsStage &stage) { stage.select(u"Someday"_s); }},
      {u"groups-many"_s, u"many"_s, [](SettingsStage &stage) { stage.select(u"Group 7"_s); }},
      {u"groups-smallest"_s, u"recent"_s,
       [](SettingsStage &stage) {
         stage.window().resize(stage.window().minimumSize());
         stage.select(u"Work"_s);
       }},
      {u"general"_s, u"recent"_s, [](SettingsStage &stage) { stage.showTab(generalTab); }},
      {u"general-recording"_s, u"recent"_s,
       [](SettingsStage &stage) {
         stage.showTab(generalTab);
         stage.click(u"Toggle Popup Panel"_s);
       }},
      {u"general-focus"_s, u"recent"_s,
       [](SettingsStage &stage) {
         stage.showTab(generalTab);
         stage.focus(u"Show Recent Items"_s);
       }},
      {u"data"_s, u"recent"_s, [](SettingsStage &stage) { stage.showTab(dataTab); }},
      {u"data-focus"_s, u"recent"_s,
       [](SettingsStage &stage) {
         stage.showTab(dataTab);
         stage.focus(u"Create Backup"_s);
       }},
      {u"data-end"_s, u"recent"_s,
       [](SettingsStage &stage) {
         stage.showTab(dataTab);
         stage.scrollToEnd();
       }},
      {u"about"_s, u"recent"_s, [](SettingsStage &stage) { stage.showTab(aboutTab); }},
  };
}

std::vector<SettingsPicture> editorsAndMenus() {
  return {
      {u"group-new"_s, u"recent"_s, [](SettingsStage &stage) { stage.click(u"Add Group"_s); }},
      {u"group-edit"_s, u"recent"_s,
       [](SettingsStage &stage) {
         stage.select(u"Work"_s);
         stage.click(u"Edit Group"_s);
       }},
      {u"group-menu"_s, u"recent"_s, [](SettingsStage &stage) { stage.openMenu(u"Home"_s); }},
      {u"item-new"_s, u"recent"_s,
       [](SettingsStage &stage) {
         stage.select(u"Work"_s);
         stage.click(u"Add Item"_s);
       }},
      {u"item-edit"_s, u"recent"_s,
       [](SettingsStage &stage) {
         stage.select(u"Work"_s);
         stage.openMenu(u"Contract"_s);
         stage.choose(u"Edit Item..."_s);
       }},
      {u"item-edit-command"_s, u"recent"_s,
       [](SettingsStage &stage) {
         stage.select(u"Work"_s);
         stage.openMenu(u"Deploy to staging"_s);
         stage.choose(u"Edit Item..."_s);
       }},
      {u"item-menu"_s, u"recent"_s,
       [](SettingsStage &stage) {
         stage.select(u"Work"_s);
         stage.openMenu(u"Projects"_s);
         stage.choose(u"Move to Group"_s);
       }},
  };
}

std::vector<SettingsPicture> alerts() {
  return {
      {u"alert-delete-group"_s, u"recent"_s,
       [](SettingsStage &stage) {
         stage.select(u"Work"_s);
         stage.click(u"Delete Group"_s);
       }},
      {u"alert-delete-item"_s, u"recent"_s,
       [](SettingsStage &stage) {
         stage.select(u"Work"_s);
         stage.openMenu(u"Contract"_s);
         stage.choose(u"Delete Item"_s);
       }},
      {u"alert-export"_s, u"recent"_s,
       [](SettingsStage &stage) {
         stage.showTab(dataTab);
         stage.click(u"Export..."_s);
       }},
      {u"alert-import"_s, u"recent"_s,
       [](SettingsStage &stage) {
         stage.showTab(dataTab);
         stage.click(u"Import..."_s);
       }},
      {u"alert-backup"_s, u"recent"_s,
       [](SettingsStage &stage) {
         stage.showTab(dataTab);
         stage.click(u"Create Backup"_s);
       }},
      {u"alert-restore"_s, u"recent"_s,
       [](SettingsStage &stage) {
         stage.showTab(dataTab);
         stage.click(u"Restore"_s);
       }},
  };
}

}  // namespace

SettingsGallery::SettingsGallery(QString directory) : m_directory(std::move(directory)) {}

int SettingsGallery::draw() {
  int count = 0;
  for (const QString &appearance : {u"light"_s, u"dark"_s}) {
    QApplication::setPalette(appearance == u"dark"_s ? Palettes::dark() : Palettes::light());
    for (const auto &part : {tabs(), editorsAndMenus(), alerts()}) {
      for (const SettingsPicture &picture : part) {
        SettingsStage stage(picture.scene);
        picture.act(stage);
        const QPixmap drawn = stage.picture();
        const QString name = u"%1/settings-%2-%3-%4x.png"_s.arg(
            m_directory, picture.name, appearance, QString::number(drawn.devicePixelRatio()));
        if (!drawn.save(name)) {
          throw HarnessError(u"the picture cannot be written: "_s + name);
        }
        ++count;
      }
    }
  }
  return count;
}

}  // namespace lanternix
