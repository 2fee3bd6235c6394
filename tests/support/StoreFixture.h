#pragma once

#include "App/AppState.h"
#include "Platform/Doors.h"
#include "Platform/Linux/PosixFileManager.h"
#include "Platform/Linux/SettingsUserDefaults.h"
#include "Services/DataDocument.h"
#include "support/FakeClock.h"
#include "support/FakeHotkeyRegistrar.h"
#include "support/FakeProcessLauncher.h"
#include "support/FakeWorkspace.h"
#include "support/TemporaryHome.h"

#include <QtCore/QFile>

#include <functional>
#include <memory>
#include <optional>

namespace lanternix {

/// A store over real files in a home of its own, with fakes only where the desktop would answer.
/// Tests derive from it, and from their framework's own base class.
class StoreFixture {
 public:
  TemporaryHome home;
  FakeClock clock;
  FakeHotkeyRegistrar hotkeyRegistrar;
  FakeWorkspace workspace;
  FakeProcessLauncher processLauncher;
  PosixFileManager fileManager;
  SettingsUserDefaults userDefaults{home.preferencesFile()};

  Doors doors() {
    return {fileManager, userDefaults, hotkeyRegistrar, workspace, processLauncher, clock};
  }

  /// A store that starts over the files as they are now.
  std::unique_ptr<AppState> makeState() { return std::make_unique<AppState>(doors()); }

  /// A store that starts with these groups and items.
  std::unique_ptr<AppState> makeState(const QList<PathGroup> &groups,
                                      const QList<PathItem> &items) {
    writeData(groups, items);
    return makeState();
  }

  void writeData(const QList<PathGroup> &groups, const QList<PathItem> &items) {
    TemporaryHome::write(home.dataFile(), *DataDocument{groups, items}.encoded());
  }

  /// What the data file holds now; none without a readable one.
  std::optional<DataDocument> savedData() const {
    const std::optional<QByteArray> bytes = TemporaryHome::read(home.dataFile());
    return bytes.has_value() ? DataDocument::decoded(*bytes) : std::nullopt;
  }

  /// Whether \p operation writes the data file, be it with the same content.
  bool saves(const std::function<void()> &operation) const {
    QFile::remove(home.dataFile());
    operation();
    return QFile::exists(home.dataFile());
  }

  static PathGroup group(const QString &name, qint64 order = 0) {
    return {QUuid::createUuid(),    name,  QStringLiteral("folder.fill"),
            QStringLiteral("blue"), order, true};
  }

  static PathGroup foldedGroup(const QString &name, qint64 order = 0) {
    PathGroup result = group(name, order);
    result.isExpanded = false;
    return result;
  }

  static PathItem item(const QString &name, const PathGroup &group, qint64 order = 0,
                       const QString &path = QStringLiteral("/")) {
    return {QUuid::createUuid(), name, path, ItemType::command, group.id, Date(), {}, order};
  }

  /// \p item as it is after having been opened so many seconds after the beginning of 2001.
  static PathItem opened(PathItem item, double seconds) {
    item.lastAccessed = Date{seconds};
    return item;
  }

  template <typename Record>
  static QStringList names(const QList<Record> &records) {
    QStringList result;
    for (const Record &record : records) {
      result.append(record.name);
    }
    return result;
  }
};

}  // namespace lanternix
