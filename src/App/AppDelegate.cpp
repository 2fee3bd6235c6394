#include "App/AppDelegate.h"

#include "App/LocalKeyMonitor.h"
#include "Platform/GlobalMouseMonitor.h"
#include "Platform/KeyCodes.h"
#include "Platform/ModalWindow.h"
#include "Platform/UserDefaults.h"
#include "Platform/WindowSystem.h"
#include "Services/Preferences.h"
#include "Utilities/FloatingPanel.h"
#include "Views/Panel/PopupPanelView.h"
#include "Views/Settings/SettingsView.h"

#include <QtGui/QKeyEvent>
#include <QtGui/QScreen>
#include <QtGui/QWindow>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QApplication>

#include <algorithm>

using namespace std::chrono_literals;

namespace lanternix {

namespace {

constexpr auto firstShowDelay = 300ms;
constexpr int liftAboveCentre = 60;

int storedLength(const UserDefaults &userDefaults, const Preference<double> &preference,
                 double floor, int available) {
  const double stored = userDefaults.real(preference.key).valueOr(0);
  const double length = stored >= floor ? stored : preference.fallback;
  // A size from a larger screen must not hang over the edges of this one.
  return static_cast<int>(std::min<double>(length, std::max<double>(available, floor)));
}

}  // namespace

AppDelegate::AppDelegate(const Doors &doors, WindowSystem &windowSystem,
                         GlobalMouseMonitor &mouseMonitor, LoginItem &loginItem, QObject *parent)
    : QObject(parent),
      m_userDefaults(doors.userDefaults),
      m_windowSystem(windowSystem),
      m_mouseMonitor(mouseMonitor),
      m_loginItem(loginItem),
      m_appState(doors) {
  m_firstShow.setSingleShot(true);
  m_firstShow.setTimerType(Qt::PreciseTimer);
  m_firstShow.setInterval(firstShowDelay);
  connect(&m_firstShow, &QTimer::timeout, this, &AppDelegate::showPanel);
}

AppDelegate::~AppDelegate() {
  m_mouseMonitor.setActive(false);
}

void AppDelegate::applicationDidFinishLaunching() {
  // The clock runs while the panel is built, which is part of the wait.
  m_firstShow.start();
  setupPanel();
  m_appState.hotkeyService().onToggle = [this] { togglePanel(); };
}

void AppDelegate::setupPanel() {
  m_panel = std::make_unique<FloatingPanel>(m_windowSystem);
  auto content = std::make_unique<PopupPanelView>(m_appState);
  content->focusSearch();
  m_content = content.get();
  connect(m_panel.get(), &FloatingPanel::didBecomeKey, m_content, &PopupPanelView::focusSearch);
  m_panel->setContentView(std::move(content));
  m_appState.onHide = [this] { m_panel->orderOut(); };
  m_appState.onShowPanel = [this] { showPanel(); };
  m_appState.onOpenSettings = [this] { openSettings(); };
  connect(m_panel.get(), &FloatingPanel::didEndLiveResize, this, &AppDelegate::storePanelSize);
  connect(m_panel.get(), &FloatingPanel::closeRequested, &m_appState, &AppState::hidePanel);

  connect(qGuiApp, &QGuiApplication::screenRemoved, this, &AppDelegate::followScreen);
  connect(qGuiApp, &QGuiApplication::screenAdded, this, &AppDelegate::watchScreen);
  for (QScreen *screen : QGuiApplication::screens()) {
    watchScreen(screen);
  }
  connect(&m_mouseMonitor, &GlobalMouseMonitor::pressedOutside, this,
          &AppDelegate::hideOnPressOutside);
  connect(&m_appState, &AppState::isPanelVisibleChanged, &m_mouseMonitor,
          [this] { m_mouseMonitor.setActive(m_appState.isPanelVisible()); });
  m_keyMonitor = std::make_unique<LocalKeyMonitor>(
      [this](const QKeyEvent &press) { return handleKey(press); });
}

void AppDelegate::togglePanel() {
  if (m_panel && m_panel->isVisible() && !m_panel->isTakenAway()) {
    m_appState.hidePanel();
  } else {
    showPanel();
  }
}

void AppDelegate::showPanel() {
  if (!m_panel) {
    return;
  }
  m_firstShow.stop();  // it would bring back what may be hidden by then
  placePanel(m_windowSystem.activeScreen());
  m_mouseMonitor.setActive(true);  // a press may follow as soon as there is a panel to see
  m_panel->makeKeyAndOrderFront();
  m_appState.setPanelVisible(true);
}

void AppDelegate::placePanel(const QScreen *screen) {
  if (screen != nullptr) {
    m_panel->setFrame(panelFrame(m_windowSystem.workArea(*screen)));
  }
}

void AppDelegate::watchScreen(QScreen *screen) {
  connect(screen, &QScreen::geometryChanged, this, [this, screen] { followScreen(screen); });
  connect(screen, &QScreen::availableGeometryChanged, this,
          [this, screen] { followWorkArea(screen); });
}

/// Wherever Qt and the window manager move the panel, they keep the size that it had in the pixels
/// of a screen that is gone, or make it fit into one that has become smaller.
void AppDelegate::followScreen(const QScreen *screen) {
  if (m_panel->screen() != screen) {
    return;
  }
  const auto placeIfShown = [this] {
    if (m_panel->isVisible()) {
      placePanel(m_panel->screen());
    }
  };
  QMetaObject::invokeMethod(this, placeIfShown, Qt::QueuedConnection);  // when they have done so
}

/// Taskbars and on-screen keyboards come and go: the panel stays where the user has put it as long
/// as there is room for it, and most of all while it is in a hand. Of a screen that has become
/// larger, it may be told only now how much of it can be used.
void AppDelegate::followWorkArea(const QScreen *screen) {
  const QRect workArea = m_windowSystem.workArea(*screen);
  const bool hasRoom =
      workArea.contains(m_panel->frame()) && m_panel->frame().size() == panelFrame(workArea).size();
  if (!hasRoom && !m_panel->isInTheUsersHand()) {
    followScreen(screen);
  }
}

void AppDelegate::openSettings() {
  m_firstShow.stop();  // the panel would come up over what was asked for
  if (!m_settings) {
    m_settings = std::make_unique<SettingsView>(m_appState, m_loginItem, m_fileChooser);
  }
  m_settings->present();
  QWindow *dialog = modalWindow();
  m_windowSystem.activate(dialog != nullptr ? *dialog : *m_settings->windowHandle());
  // Not before: it would count as the answer to who asks for the settings.
  if (m_panel && m_panel->isVisible()) {
    m_appState.hidePanel();
  }
}

QRect AppDelegate::panelFrame(const QRect &workArea) const {
  const int width = storedLength(m_userDefaults, Preferences::panelWidth,
                                 Preferences::panelWidthFloor, workArea.width());
  const int height = storedLength(m_userDefaults, Preferences::panelHeight,
                                  Preferences::panelHeightFloor, workArea.height());
  const int x = workArea.x() + (workArea.width() - width) / 2;
  const int y = workArea.y() + (workArea.height() - height) / 2 - liftAboveCentre;
  return {x, std::max(y, workArea.y()), width, height};
}

void AppDelegate::hideOnPressOutside() {
  if (m_panel->isVisible()) {
    m_appState.hidePanel();
  }
}

void AppDelegate::storePanelSize() {
  m_userDefaults.setReal(m_panel->frame().width(), Preferences::panelWidth.key);
  m_userDefaults.setReal(m_panel->frame().height(), Preferences::panelHeight.key);
}

// While the panel is on the screen these keys are its own, whichever of the program's windows has
// the keyboard: it lies in front of all of them and says "esc close" at its foot, so Escape takes
// away what is in front first, and what a press does can be told by looking.
bool AppDelegate::handleKey(const QKeyEvent &press) {
  // With the keyboard it is on the screen, which need not be asked then.
  if (!m_panel->isVisible() || (!m_panel->isActiveWindow() && m_panel->isTakenAway())) {
    return false;
  }
  const std::optional<quint32> key =
      KeyCodes::virtualCodeForPress(press.nativeScanCode(), press.nativeVirtualKey());
  if (key == KeyCodes::escape) {
    m_appState.hidePanel();
    return true;
  }
  if (key == KeyCodes::upArrow || key == KeyCodes::downArrow) {
    key == KeyCodes::upArrow ? m_appState.navigateUp() : m_appState.navigateDown();
    m_content->focusSearch();  // so that Return is for the item, whatever Tab had led to
    return true;
  }
  // A button that has the keyboard is what Return is meant for.
  const bool isForButton = qobject_cast<QAbstractButton *>(QApplication::focusWidget()) != nullptr;
  if (key == KeyCodes::returnKey && !isForButton) {
    m_appState.openSelectedOrFirstItem();
    return true;
  }
  // By its position like every character key, and by the character itself, which is where users of
  // other layouts look for it.
  const bool isComma = key == KeyCodes::comma || press.key() == Qt::Key_Comma;
  if (isComma && (press.modifiers() & (Qt::MetaModifier | Qt::ControlModifier)) != 0) {
    m_appState.hidePanel();
    if (m_appState.onOpenSettings) {
      m_appState.onOpenSettings();
    }
    return true;
  }
  return false;
}

}  // namespace lanternix
