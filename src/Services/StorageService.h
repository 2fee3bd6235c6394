#pragma once

#include "Services/DataDocument.h"

#include <QtCore/QByteArray>

#include <optional>

namespace lanternix {

class FileManager;

/// Keeps the whole data set in one JSON file, "data.json" in the program's directory. Holds no copy
/// of the data. No operation reports an error: what fails is logged and has the effect stated.
class StorageService {
 public:
  using Data = DataDocument;

  explicit StorageService(FileManager &fileManager);

  /// The stored data. Empty lists when the file is missing, unreadable or not a data document; such
  /// a file is left as it is until the next save().
  Data load();

  /// Replaces the data file in one step: a reader, or a crash, meets the old document or the new
  /// one, each whole. When encoding or writing fails the old file stays as it was.
  void save(const QList<PathGroup> &groups, const QList<PathItem> &items);

  /// The document of the given lists, or none when it cannot be encoded.
  std::optional<QByteArray> exportJSON(const QList<PathGroup> &groups,
                                       const QList<PathItem> &items) const;

  /// The data in \p bytes, or none when they are not a data document.
  std::optional<Data> importJSON(QByteArrayView bytes) const;

 private:
  /// Path of the program's directory, which is created by every call that finds it missing.
  QString storageDirectory();
  QString dataFile();

  FileManager &m_fileManager;
};

}  // namespace lanternix
