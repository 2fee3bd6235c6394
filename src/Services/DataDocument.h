#pragma once

#include "Models/PathGroup.h"
#include "Models/PathItem.h"

#include <QtCore/QByteArray>
#include <QtCore/QList>

#include <optional>

namespace lanternix {

/// The data document: every group and every item, each list in the order in which the store holds
/// it. The data file, every backup and every export are this one record, byte for byte.
/// docs/file-format.md describes the format for people.
struct DataDocument {
  QList<PathGroup> groups;
  QList<PathItem> items;

  /// The UTF-8 JSON text. The same document gives the same bytes. None when a date is not finite,
  /// which JSON cannot express.
  std::optional<QByteArray> encoded() const;

  /// The document in \p bytes, or none when a single byte of it is amiss: not JSON, not UTF-8, a
  /// required key missing, a value of the wrong type. Unknown keys are ignored. When \p error is
  /// given, it receives what is wrong and at which byte.
  static std::optional<DataDocument> decoded(QByteArrayView bytes, QString *error = nullptr);

  friend bool operator==(const DataDocument &, const DataDocument &) = default;
};

}  // namespace lanternix
