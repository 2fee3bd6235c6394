#include "Services/StorageService.h"

#include "Platform/FileManager.h"

#include <QtCore/QLoggingCategory>

namespace lanternix {

using namespace Qt::StringLiterals;

namespace {

Q_LOGGING_CATEGORY(storage, "lanternix.storage", QtWarningMsg)

std::optional<StorageService::Data> decoded(QByteArrayView bytes, const QString &source) {
  QString error;
  std::optional<StorageService::Data> data = DataDocument::decoded(bytes, &error);
  if (!data) {
    qCWarning(storage) << source << "is not a data document:" << error;
  }
  return data;
}

}  // namespace

StorageService::StorageService(FileManager &fileManager) : m_fileManager(fileManager) {}

StorageService::Data StorageService::load() {
  const QString path = dataFile();
  const std::optional<QByteArray> bytes = m_fileManager.contents(path);
  if (!bytes) {
    qCInfo(storage) << "no data can be read from" << path;
    return {};
  }
  return decoded(*bytes, path).value_or(Data());
}

void StorageService::save(const QList<PathGroup> &groups, const QList<PathItem> &items) {
  const std::optional<QByteArray> bytes = exportJSON(groups, items);
  if (!bytes) {
    return;
  }
  const QString path = dataFile();
  if (!m_fileManager.writeAtomically(*bytes, path)) {
    qCWarning(storage) << "the data cannot be saved to" << path;
  }
}

std::optional<QByteArray> StorageService::exportJSON(const QList<PathGroup> &groups,
                                                     const QList<PathItem> &items) const {
  std::optional<QByteArray> bytes = Data{groups, items}.encoded();
  if (!bytes) {
    qCWarning(storage) << "the data hold a date that is no number and cannot be written";
  }
  return bytes;
}

std::optional<StorageService::Data> StorageService::importJSON(QByteArrayView bytes) const {
  return decoded(bytes, u"what is to be imported"_s);
}

QString StorageService::storageDirectory() {
  const QString support = m_fileManager.applicationSupportDirectory();
  if (support.isEmpty()) {
    qFatal("Lanternix has no place for its data: the user has no home directory");
  }
  QString directory = support + u"/Lanternix"_s;
  if (!m_fileManager.createDirectory(directory)) {
    qCWarning(storage) << "the directory" << directory << "cannot be created";
  }
  return directory;
}

QString StorageService::dataFile() {
  return storageDirectory() + u"/data.json"_s;
}

}  // namespace lanternix
