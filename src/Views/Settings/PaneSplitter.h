#pragma once

#include <QtWidgets/QSplitter>

namespace lanternix {

/// Two panes side by side with a faint line between them, by which their widths are changed.
class PaneSplitter : public QSplitter {
  Q_OBJECT

 public:
  explicit PaneSplitter(QWidget *parent = nullptr);

 protected:
  QSplitterHandle *createHandle() override;
};

}  // namespace lanternix
