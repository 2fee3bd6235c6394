#pragma once

#include "Views/Style/TextStyle.h"

#include <QtWidgets/QWidget>

namespace lanternix {

/// What stands in the middle of a pane that has nothing to list: a symbol, what is missing, what to
/// do about it.
class ListPlaceholder : public QWidget {
  Q_OBJECT

 public:
  struct Content {
    QString symbol;
    double symbolSide = 0;  ///< logical pixels
    QString title;
    TextStyle titleStyle = TextStyle::body;
    QString hint;
    TextStyle hintStyle = TextStyle::body;
  };

  explicit ListPlaceholder(const Content &content, QWidget *parent = nullptr);
};

}  // namespace lanternix
