#pragma once

#include <QtWidgets/QWidget>

namespace lanternix {

/// What the panel says when a search finds nothing.
class NoResultsView : public QWidget {
  Q_OBJECT

 public:
  explicit NoResultsView(QWidget *parent = nullptr);
};

}  // namespace lanternix
