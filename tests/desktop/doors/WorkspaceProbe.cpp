#include "Platform/Linux/GioWorkspace.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QTextStream>

namespace {

using namespace Qt::StringLiterals;

/// Carries out one request of the command line, such as "file PATH".
void carryOut(lanternix::Workspace &workspace, const QStringList &request) {
  const QString &what = request.value(0);
  const QString &subject = request.value(1);
  if (what == "file"_L1) {
    workspace.openFile(subject);
  } else if (what == "url"_L1) {
    workspace.openUrl(subject);
  } else if (what == "directory"_L1) {
    workspace.openDirectory(subject, request.value(2));
  } else if (what == "reveal"_L1) {
    workspace.revealInFileViewer(subject);
  } else if (what == "has"_L1) {
    QTextStream(stdout) << (workspace.hasApplication(subject) ? "yes" : "no") << Qt::endl;
  }
}

}  // namespace

// Asks the desktop for one thing. Ends at once, as a program does that quits right after; with
// "stay" before the request it lives on instead.
int main(int argc, char **argv) {
  const QCoreApplication application(argc, argv);
  const QStringList request = QCoreApplication::arguments().mid(1);
  const bool stays = request.value(0) == "stay"_L1;
  lanternix::GioWorkspace workspace;
  carryOut(workspace, request.mid(stays ? 1 : 0));
  return stays ? QCoreApplication::exec() : 0;
}
