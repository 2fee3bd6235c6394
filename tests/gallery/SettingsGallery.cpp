#include "gallery/SettingsGallery.h"

#include "Views/Style/Palettes.h"
#include "gallery/SettingsStage.h"
#include "support/HarnessError.h"

#include <QtWidgets/QApplication>

#include <vector>

namespace lanternix {

namespace {

using namespace Qt::StringLiterals;

/// One picture: what it is called, what the store holds, what the user did, and how large the
/// user's font is beside the usual one.
struct SettingsPicture {
  QString name;
  QString scene;
  void (*act)(SettingsStage &stage);
  double fontScale = 1;
};

constexpr double largeFont = 1.6;

constexpr int generalTab = 1;
constexpr int dataTab = 2;
constexpr int aboutTab = 3;

/// Chooses an entry from the menu of an item of the group "Work".
void chooseFor(SettingsStage &stage, const QString &item, const QString &entry) {
  stage.select(u"Work"_s);
  stage.openMenu(item);
  stage.choose(entry);
}

void editItem(SettingsStage &stage, const QString &item) {
  chooseFor(stage, item, u"Edit Item..."_s);
}

void clickInData(SettingsStage &stage, const QString &button) {
  stage.showTab(dataTab);
  stage.click(button);
}

std::vector<SettingsPicture> tabs() {
  return {
      {u"groups-empty"_s, u"no-groups"_s, [](SettingsStage &) {}},
      {u"groups-unselected"_s, u"recent"_s, [](SettingsStage &) {}},
      {u"groups"_s, u"recent"_s,
       [](SettingsStage &stage) {
         stage.select(u"Home"_s);
         stage.select(u"Pictures"_s);
       }},
      {u"groups-broken"_s, u"recent"_s,
       [](SettingsStage &stage) {
         stage.select(u"Home"_s);
         stage.select(u"Old notes"_s);
       }},
      {u"groups-long-names"_s, u"long-names"_s,
       [](SettingsStage &stage) {
         stage.select(u"Everything that has to do with the move to the new house by the harbour"_s);
         stage.window().resize(stage.window().minimumSize());
       }},
      {u"groups-right-to-left"_s, u"long-names"_s,
       [](SettingsStage &stage) {
         stage.select(u"עבודה"_s);
         stage.select(u"לוח משימות"_s);
       }},
      {u"groups-large-font"_s, u"recent"_s,
       [](SettingsStage &stage) {
         stage.select(u"Home"_s);
         stage.select(u"Old notes"_s);
       },
       largeFont},
      {u"general-large-font"_s, u"recent"_s,
       [](SettingsStage &stage) { stage.showTab(generalTab); }, largeFont},
      {u"data-large-font"_s, u"recent"_s, [](SettingsStage &stage) { stage.showTab(dataTab); },
       largeFont},
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
      {u"item-edit"_s, u"recent"_s, [](SettingsStage &stage) { editItem(stage, u"Contract"_s); }},
      {u"item-edit-command"_s, u"recent"_s,
       [](SettingsStage &stage) { editItem(stage, u"Deploy to staging"_s); }},
      {u"item-edit-large-font"_s, u"recent"_s,
       [](SettingsStage &stage) { editItem(stage, u"Contract"_s); }, largeFont},
      {u"item-menu"_s, u"recent"_s,
       [](SettingsStage &stage) { chooseFor(stage, u"Projects"_s, u"Move to Group"_s); }},
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
       [](SettingsStage &stage) { chooseFor(stage, u"Contract"_s, u"Delete Item"_s); }},
      {u"alert-large-font"_s, u"recent"_s,
       [](SettingsStage &stage) { chooseFor(stage, u"Contract"_s, u"Delete Item"_s); }, largeFont},
      {u"alert-export"_s, u"recent"_s,
       [](SettingsStage &stage) { clickInData(stage, u"Export..."_s); }},
      {u"alert-import"_s, u"recent"_s,
       [](SettingsStage &stage) { clickInData(stage, u"Import..."_s); }},
      {u"alert-backup"_s, u"recent"_s,
       [](SettingsStage &stage) { clickInData(stage, u"Create Backup"_s); }},
      {u"alert-restore"_s, u"recent"_s,
       [](SettingsStage &stage) { clickInData(stage, u"Restore"_s); }},
  };
}

}  // namespace

SettingsGallery::SettingsGallery(QString directory) : m_directory(std::move(directory)) {}

int SettingsGallery::draw() {
  const QFont usual = QApplication::font();
  int count = 0;
  for (const QString &appearance : {u"light"_s, u"dark"_s}) {
    QApplication::setPalette(appearance == u"dark"_s ? Palettes::dark() : Palettes::light());
    for (const auto &part : {tabs(), editorsAndMenus(), alerts()}) {
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
