#pragma once

#include "Platform/Workspace.h"

#include <QtCore/QObject>
#include <QtCore/QThreadPool>

#include <functional>

namespace lanternix {

/// The applications that desktop entries describe, and the file manager on the session bus.
///
/// Finding and starting an application reads files, perhaps over a network, and waits for the new
/// process; that happens on one thread beside the user interface's, in the order of the calls. The
/// thread lives only while there is something to do. When the workspace goes, whatever it has been
/// asked for is still handed over.
class GioWorkspace : public Workspace {
 public:
  GioWorkspace();
  ~GioWorkspace() override;

  void openFile(const QString &path) override;
  void openUrl(const QString &url) override;
  bool hasApplication(const QString &identifier) const override;
  void openDirectory(const QString &path, const QString &identifier) override;
  void revealInFileViewer(const QString &path) override;
  QStringList iconNamesForFile(const QString &path) const override;
  QStringList iconNamesForFolders() const override;
  QStringList iconNamesForAnyFile() const override;

 private:
  void openEnclosingFolder(const QString &path);

  QObject m_reveals;  // owns a watcher for each reveal that the file manager has not answered
  QThreadPool m_launches;
};

}  // namespace lanternix
