#pragma once

#include "Views/Settings/ListPlaceholder.h"

#include <QtWidgets/QStackedWidget>

namespace lanternix {

/// A place for a list, or a page, and for a placeholder while there is nothing to show.
class ListPane : public QStackedWidget {
  Q_OBJECT

 public:
  /// Takes \p content, and shows the placeholder until told otherwise.
  ListPane(QWidget *content, const ListPlaceholder::Content &placeholder,
           QWidget *parent = nullptr);

  /// Shows the content, or else the placeholder in its place.
  void setContentShown(bool shown);

 private:
  QWidget *m_content;
  ListPlaceholder *m_placeholder;
};

}  // namespace lanternix
