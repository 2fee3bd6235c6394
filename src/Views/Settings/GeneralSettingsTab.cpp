#include "Views/Settings/GeneralSettingsTab.h"

#include "App/AppState.h"
#include "Platform/LoginItem.h"
#include "Utilities/LoginItemHelper.h"
#include "Views/Controls/FormSection.h"
#include "Views/Controls/SegmentedPicker.h"
#include "Views/Controls/ToggleSwitch.h"
#include "Views/Settings/ShortcutRecorderView.h"

#include <QtCore/QEvent>
#include <QtWidgets/QHBoxLayout>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace lanternix {

namespace {

/// The names of all sizes as people read them.
QStringList itemSizeNames() {
  QStringList names;
  for (const PanelItemSize size : allPanelItemSizes) {
    QString name = rawValue(size);
    name[0] = name.at(0).toUpper();
    names.append(name);
  }
  return names;
}

/// A recorder, with its edge in line with those of the controls that have room for a ring.
QWidget *makeRecorder(HotkeyService &hotkeyService, QWidget *parent) {
  constexpr int ringRoom = 3;
  auto *place = new QWidget(parent);
  auto *layout = new QHBoxLayout(place);
  layout->setContentsMargins(0, 0, ringRoom, 0);
  layout->addWidget(new ShortcutRecorderView(hotkeyService, place));
  return place;
}

/// A preference of the store that is on or off.
struct Switch {
  QString title;
  bool (AppState::*value)() const;
  void (AppState::*setValue)(bool);
  void (AppState::*changed)();
};

void addSwitch(FormSection &section, AppState &appState, const Switch &preference) {
  auto *toggle = new ToggleSwitch(preference.title, &section);
  section.addRow(preference.title, {}, toggle);
  toggle->setChecked((appState.*preference.value)());
  QObject::connect(toggle, &QAbstractButton::clicked, &appState, preference.setValue);
  QObject::connect(&appState, preference.changed, toggle, [toggle, &appState, preference] {
    toggle->setChecked((appState.*preference.value)());
  });
}

}  // namespace

GeneralSettingsTab::GeneralSettingsTab(AppState &appState, LoginItem &loginItem, QWidget *parent)
    : FormView(parent), m_appState(appState), m_loginItem(loginItem) {
  addShortcut();
  addPanelDisplay();
  addStartup();
}

void GeneralSettingsTab::addShortcut() {
  FormSection &section = addSection(u"Keyboard Shortcut"_s);
  section.addRow(u"Toggle Popup Panel"_s, u"Press to show or hide the quick access panel"_s,
                 makeRecorder(m_appState.hotkeyService(), &section));
}

void GeneralSettingsTab::addPanelDisplay() {
  FormSection &section = addSection(u"Panel Display"_s);
  addSwitch(section, m_appState,
            {u"Show Paths / URLs"_s, &AppState::showURLs, &AppState::setShowURLs,
             &AppState::showURLsChanged});
  addSwitch(section, m_appState,
            {u"Show Recent Items"_s, &AppState::showRecentItems, &AppState::setShowRecentItems,
             &AppState::showRecentItemsChanged});
  m_itemSize = new SegmentedPicker(u"Item Size"_s, itemSizeNames(), &section);
  fitItemSize();
  section.addRow(u"Item Size"_s, u"Control how compact or spacious items appear"_s, m_itemSize);
  connect(m_itemSize, &SegmentedPicker::currentIndexChanged, this, [this](int index) {
    m_appState.setPanelItemSize(allPanelItemSizes.at(static_cast<size_t>(index)));
  });
  connect(&m_appState, &AppState::panelItemSizeChanged, this, &GeneralSettingsTab::readItemSize);
  readItemSize();
}

void GeneralSettingsTab::addStartup() {
  FormSection &section = addSection(u"Startup"_s);
  m_launchAtLogin = new ToggleSwitch(u"Launch Lanternix at Login"_s, &section);
  section.addRow(m_launchAtLogin->accessibleName(), {}, m_launchAtLogin);
  connect(m_launchAtLogin, &QAbstractButton::clicked, this, [this](bool enabled) {
    LoginItemHelper::setEnabled(m_loginItem, enabled);
    readLoginItem();
  });
  readLoginItem();
}

void GeneralSettingsTab::fitItemSize() {
  constexpr int pickerWidth = 200;
  // Large fonts take more.
  m_itemSize->setFixedWidth(std::max(pickerWidth, m_itemSize->minimumSizeHint().width()));
}

void GeneralSettingsTab::readItemSize() {
  const auto *size = std::ranges::find(allPanelItemSizes, m_appState.panelItemSize());
  m_itemSize->setCurrentIndex(static_cast<int>(size - allPanelItemSizes.begin()));
}

void GeneralSettingsTab::readLoginItem() {
  m_launchAtLogin->setChecked(m_loginItem.status() == LoginItem::Status::enabled);
}

void GeneralSettingsTab::showEvent(QShowEvent *event) {
  readLoginItem();
  FormView::showEvent(event);
}

// The desktop's own settings may have changed it while the user was there.
bool GeneralSettingsTab::event(QEvent *event) {
  if (event->type() == QEvent::WindowActivate) {
    readLoginItem();
  } else if (event->type() == QEvent::FontChange) {
    fitItemSize();
  }
  return FormView::event(event);
}

}  // namespace lanternix
