#pragma once

#include <QtWidgets/QWidget>

namespace lanternix {

/// Names the program and its version.
class AboutTab : public QWidget {
  Q_OBJECT

 public:
  explicit AboutTab(QWidget *parent = nullptr);
};

}  // namespace lanternix
