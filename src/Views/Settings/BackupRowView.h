#pragma once

#include "Services/BackupInfo.h"

#include <QtWidgets/QWidget>

namespace lanternix {

/// A backup in the list of those that can be restored: when it was made, its file and its size.
class BackupRowView : public QWidget {
  Q_OBJECT

 public:
  explicit BackupRowView(const BackupInfo &backup, QWidget *parent = nullptr);

 Q_SIGNALS:
  void restoreRequested();
};

}  // namespace lanternix
