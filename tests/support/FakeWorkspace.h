#pragma once

#include "Platform/Workspace.h"

#include <QtCore/QHash>
#include <QtCore/QStringList>

#include <functional>

namespace lanternix {

/// A desktop that notes what it is asked for, such as "openUrl https://a.example".
class FakeWorkspace final : public Workspace {
 public:
  void openFile(const QString &path) override { note(QStringLiteral("openFile ") + path); }
  void openUrl(const QString &url) override { note(QStringLiteral("openUrl ") + url); }
  bool hasApplication(const QString &identifier) const override {
    return applications.contains(identifier);
  }
  void openDirectory(const QString &path, const QString &identifier) override {
    note(QStringLiteral("openDirectory ") + path + QStringLiteral(" with ") + identifier);
  }
  void revealInFileViewer(const QString &path) override {
    note(QStringLiteral("revealInFileViewer ") + path);
  }
  QStringList iconNamesForFile(const QString &path) const override {
    iconRequests.append(path);
    return icons.value(path);
  }
  QStringList iconNamesForFolders() const override { return {QStringLiteral("folder")}; }
  QStringList iconNamesForAnyFile() const override { return {QStringLiteral("any-file")}; }

  QStringList requests;
  /// The identifiers of the applications that are installed.
  QStringList applications;
  /// The names of the icons of the files that exist, by their paths.
  QHash<QString, QStringList> icons;
  /// The paths of the files whose icons have been asked for.
  mutable QStringList iconRequests;
  /// Called at every request, to look at the state of things at that moment.
  std::function<void()> onRequest;

 private:
  void note(const QString &request) {
    requests.append(request);
    if (onRequest) {
      onRequest();
    }
  }
};

}  // namespace lanternix
