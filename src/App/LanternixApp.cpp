#include "App/LanternixApp.h"

#include "App/AppDelegate.h"
#include "App/AppearanceFollower.h"
#include "Platform/ActivationToken.h"
#include "Platform/ApplicationId.h"
#include "Platform/Platform.h"
#include "Platform/SingleInstance.h"
#include "Platform/TerminationMonitor.h"
#include "Platform/WindowSystem.h"
#include "Platform/WindowSystemChoice.h"
#include "Views/MenuBar/StatusItem.h"
#include "Views/Panel/PanelAccessibility.h"
#include "Views/Settings/SettingsAccessibility.h"
#include "Views/Style/ApplicationIcon.h"
#include "Views/Style/LanternixStyle.h"

#include <QtGui/QPixmapCache>
#include <QtGui/QSessionManager>
#include <QtWidgets/QApplication>

#include <algorithm>
#include <array>
#include <cstdio>

using namespace Qt::StringLiterals;

namespace lanternix {

namespace {

/// Whoever ends the program, ends it: the usual way would ask every window, and the panel, which is
/// hidden rather than closed, would refuse.
class Application : public QApplication {
 public:
  using QApplication::QApplication;

  bool event(QEvent *event) override {
    if (event->type() == QEvent::Quit) {
      exit(EXIT_SUCCESS);
      return true;
    }
    return QApplication::event(event);
  }
};

/// What Qt is started with. The program takes no options, so Qt's own are not offered either; by
/// one of them the window system is told, which unlike a variable of the environment stays with us
/// when other programs are started.
struct AppArguments {
  AppArguments(int argc, char **argv) {
    count = qMin(argc, 1);
    std::copy_n(argv, count, pointers.begin());
    if (count == 1 && !platformName.isEmpty()) {
      pointers = {argv[0], option.data(), platformName.data(), nullptr};
      count = 3;
    }
  }

  const std::unique_ptr<WindowSystemChoice> choice = chooseWindowSystem();
  QByteArray option = "-platform"_ba;
  QByteArray platformName = choice->platformName();
  int count = 0;
  std::array<char *, 4> pointers{};
};

// Qt ends a program that finds no display by aborting it; a sentence serves people better.
bool hasDisplay() {
  return qEnvironmentVariableIsSet("DISPLAY") || qEnvironmentVariableIsSet("WAYLAND_DISPLAY") ||
         qEnvironmentVariableIsSet("QT_QPA_PLATFORM");
}

void followCompositing(const WindowSystem &windowSystem, LanternixStyle &style) {
  const auto apply = [&windowSystem, &style] { style.setSoftEdges(windowSystem.isComposited()); };
  QObject::connect(&windowSystem, &WindowSystem::compositingChanged, &style, apply);
  apply();
}

/// Owns the program's item in the tray: makes it once the event loop runs, so that the panel does
/// not wait for it, and lets it go before the delegate that it shows the items of.
class TrayShell : public QObject {
 public:
  TrayShell(AppDelegate &delegate, Platform &platform)
      : m_delegate(delegate), m_platform(platform) {}

  void makeItem() {
    m_item = std::make_unique<StatusItem>(m_delegate.appState(), m_platform.systemTray());
    connect(m_item.get(), &StatusItem::quitRequested, QCoreApplication::instance(),
            &QCoreApplication::quit);
  }

 private:
  AppDelegate &m_delegate;
  Platform &m_platform;
  std::unique_ptr<StatusItem> m_item;
};

/// Ends the event loop, and with it the program, when the system wants that.
void followTermination(const Application &application, const TerminationMonitor &monitor) {
  QObject::connect(&monitor, &TerminationMonitor::terminationRequested, &application,
                   &QCoreApplication::quit);
  // Whether the program starts at login is for the login item alone to say.
  QObject::connect(
      &application, &QGuiApplication::saveStateRequest, &application,
      [](QSessionManager &session) { session.setRestartHint(QSessionManager::RestartNever); });
}

void answerRequests(const SingleInstance &instance, AppDelegate &delegate,
                    WindowSystem &windowSystem) {
  using Request = SingleInstance::Request;
  const auto answer = [&delegate, &windowSystem](Request request, const ActivationToken &token) {
    windowSystem.noteRequest(token);
    switch (request) {
      case Request::showPanel:
        delegate.showPanel();
        break;
      case Request::togglePanel:
        delegate.togglePanel();
        break;
      case Request::openSettings:
        delegate.openSettings();
        break;
    }
  };
  QObject::connect(&instance, &SingleInstance::requested, &delegate, answer);
}

/// The session's one program, started with \p token, until its end.
int runShell(const SingleInstance &instance, const ActivationToken &token, LanternixStyle &style) {
  const std::unique_ptr<Platform> platform = Platform::create();
  platform->windowSystem().noteRequest(token);
  followCompositing(platform->windowSystem(), style);
  const AppearanceFollower appearance(platform->systemAppearance(), style);
  AppDelegate delegate(platform->doors(), platform->windowSystem(), platform->mouseMonitor(),
                       platform->loginItem());
  answerRequests(instance, delegate, platform->windowSystem());
  delegate.applicationDidFinishLaunching();
  TrayShell tray(delegate, *platform);
  // Queued: a tray can wait until the program answers its shortcut.
  QMetaObject::invokeMethod(&tray, &TrayShell::makeItem, Qt::QueuedConnection);
  return QApplication::exec();
}

}  // namespace

int LanternixApp::run(int argc, char **argv) {
  if (!hasDisplay()) {
    std::fputs("lanternix: there is no display to show the panel on\n", stderr);
    return 1;
  }
  const ActivationToken token = ActivationToken::takeFromEnvironment();
  QCoreApplication::setApplicationName(u"Lanternix"_s);
  QGuiApplication::setDesktopFileName(applicationId);
  auto *style = new LanternixStyle;  // owned by the application
  QApplication::setStyle(style);
  AppArguments arguments(argc, argv);
  const Application application(arguments.count, arguments.pointers.data());
  const std::unique_ptr<TerminationMonitor> termination = makeTerminationMonitor();
  followTermination(application, *termination);
  QApplication::setQuitOnLastWindowClosed(false);
  // Its clean-up runs on a timer, which would wake the program while the panel is hidden.
  QPixmapCache::setCacheLimit(0);
  QApplication::setWindowIcon(applicationIcon());
  PanelAccessibility::install();
  SettingsAccessibility::install();

  const std::unique_ptr<SingleInstance> instance = makeSingleInstance();
  if (!instance->claim(token)) {
    return 0;
  }
  return runShell(*instance, token, *style);
}

}  // namespace lanternix
