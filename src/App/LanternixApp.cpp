#include "App/LanternixApp.h"

#include "App/AppDelegate.h"
#include "App/AppearanceFollower.h"
#include "Platform/Platform.h"
#include "Platform/SingleInstance.h"
#include "Platform/WindowSystem.h"
#include "Views/Panel/PanelAccessibility.h"
#include "Views/Style/ApplicationIcon.h"
#include "Views/Style/LanternixStyle.h"

#include <QtGui/QPixmapCache>
#include <QtWidgets/QApplication>

#include <cstdio>

using namespace Qt::StringLiterals;

namespace lanternix {

namespace {

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

}  // namespace

int LanternixApp::run(int argc, char **argv) {
  if (!hasDisplay()) {
    std::fputs("lanternix: there is no display to show the panel on\n", stderr);
    return 1;
  }
  QCoreApplication::setApplicationName(u"Lanternix"_s);
  QGuiApplication::setDesktopFileName(u"org.lanternix.Lanternix"_s);
  auto *style = new LanternixStyle;  // owned by the application
  QApplication::setStyle(style);
  // The program takes no options, so Qt's own are not offered either.
  int count = qMin(argc, 1);
  const QApplication application(count, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  // Its clean-up runs on a timer, which would wake the program while the panel is hidden.
  QPixmapCache::setCacheLimit(0);
  QApplication::setWindowIcon(applicationIcon());
  PanelAccessibility::install();

  const std::unique_ptr<SingleInstance> instance = makeSingleInstance();
  if (!instance->claim()) {
    return 0;
  }
  const std::unique_ptr<Platform> platform = Platform::create();
  followCompositing(platform->windowSystem(), *style);
  const AppearanceFollower appearance(platform->systemAppearance(), *style);
  AppDelegate delegate(platform->doors(), platform->windowSystem(), platform->mouseMonitor());
  QObject::connect(instance.get(), &SingleInstance::showRequested, &delegate,
                   &AppDelegate::showPanel);
  delegate.applicationDidFinishLaunching();
  return QApplication::exec();
}

}  // namespace lanternix
