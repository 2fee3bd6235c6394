#include "Views/Settings/DesktopFileChooser.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QUrl>
#include <QtWidgets/QFileDialog>

using namespace Qt::StringLiterals;

namespace lanternix {

namespace {

void setKind(QFileDialog &dialog, FileChooser::Kind kind) {
  switch (kind) {
    case FileChooser::Kind::directory:
      dialog.setFileMode(QFileDialog::Directory);
      dialog.setOption(QFileDialog::ShowDirsOnly);
      dialog.setOption(QFileDialog::ReadOnly);  // nothing is made or renamed on the way
      break;
    case FileChooser::Kind::file:
      dialog.setFileMode(QFileDialog::ExistingFile);
      dialog.setOption(QFileDialog::ReadOnly);
      break;
    case FileChooser::Kind::fileToReplace:
      dialog.setFileMode(QFileDialog::AnyFile);
      dialog.setAcceptMode(QFileDialog::AcceptSave);
      break;
  }
}

void setStart(QFileDialog &dialog, const FileChooser::Request &request) {
  const QFileInfo start(request.start);
  if (start.isAbsolute() && start.isDir()) {
    dialog.setDirectory(request.start);
    return;
  }
  const bool isToBeWritten = request.kind == FileChooser::Kind::fileToReplace;
  const bool leadsSomewhere =
      start.isAbsolute() && (isToBeWritten ? start.dir().exists() : start.exists());
  dialog.setDirectory(leadsSomewhere ? start.dir() : QDir::home());
  if (leadsSomewhere || isToBeWritten) {
    dialog.selectFile(start.fileName());
  }
}

}  // namespace

void DesktopFileChooser::choose(const Request &request, QWidget *owner, const Chosen &chosen) {
  auto *dialog = new QFileDialog(owner->window(), request.title);
  dialog->setAttribute(Qt::WA_DeleteOnClose);
  dialog->setWindowModality(Qt::WindowModal);
  dialog->setSupportedSchemes({u"file"_s});
  setKind(*dialog, request.kind);
  if (!request.nameFilters.isEmpty()) {
    dialog->setNameFilters(request.nameFilters);
  }
  setStart(*dialog, request);
  QObject::connect(dialog, &QFileDialog::fileSelected, owner, [chosen](const QString &path) {
    if (!path.isEmpty()) {
      chosen(path);
    }
  });
  dialog->open();
}

}  // namespace lanternix
