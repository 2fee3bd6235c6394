#pragma once

#include "Services/BackupInfo.h"

#include <QtWidgets/QWidget>

#include <optional>

namespace lanternix {

/// A backup in the list of those that can be restored: when it was made, its file and its size.
class BackupRowView : public QWidget {
  Q_OBJECT

 public:
  /// \p size is that of the file, in bytes; none when it is gone.
  BackupRowView(const BackupInfo &backup, std::optional<qint64> size, QWidget *parent = nullptr);

 Q_SIGNALS:
  /// The button has been pressed. Nothing has been asked or done yet.
  void restoreRequested();
};

}  // namespace lanternix
