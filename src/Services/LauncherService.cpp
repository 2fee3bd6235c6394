#include "Services/LauncherService.h"

#include "Models/LinkText.h"
#include "Models/PathItem.h"
#include "Platform/ProcessLauncher.h"
#include "Platform/UserDefaults.h"
#include "Platform/Workspace.h"
#include "Services/Preferences.h"

#include <QtCore/QLoggingCategory>

namespace lanternix {
namespace {

using namespace Qt::StringLiterals;

Q_LOGGING_CATEGORY(launcherLog, "lanternix.launcher", QtWarningMsg)

}  // namespace

LauncherService::LauncherService(Workspace &workspace, ProcessLauncher &processLauncher,
                                 UserDefaults &userDefaults)
    : m_workspace(workspace), m_processLauncher(processLauncher), m_userDefaults(userDefaults) {}

void LauncherService::open(const PathItem &item) {
  switch (item.type) {
    case ItemType::directory:
      openInFileViewer(item.path);
      break;
    case ItemType::file:
      m_workspace.openFile(item.path);
      break;
    case ItemType::link:
      if (parsesAsUrl(item.path)) {
        m_workspace.openUrl(item.path);
      } else {
        qCInfo(launcherLog) << "Not a URL:" << item.path;
      }
      break;
    case ItemType::command:
      runCommand(item.path);
      break;
  }
}

void LauncherService::revealInFinder(const PathItem &item) {
  if (item.type == ItemType::directory || item.type == ItemType::file) {
    m_workspace.revealInFileViewer(item.path);
  }
}

void LauncherService::openInFileViewer(const QString &directory) {
  const QString viewer = m_userDefaults.string(Preferences::fileViewer).valueOr({});
  if (!viewer.isEmpty() && m_workspace.hasApplication(viewer)) {
    m_workspace.openDirectory(directory, viewer);
    return;
  }
  m_workspace.revealInFileViewer(directory);
}

void LauncherService::runCommand(const QString &commandLine) {
  if (!m_processLauncher.launch(u"/bin/sh"_s, {u"-c"_s, commandLine})) {
    qCInfo(launcherLog) << "The shell did not start for" << commandLine;
  }
}

}  // namespace lanternix
