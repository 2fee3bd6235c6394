#include "Views/Settings/ListPane.h"

namespace lanternix {

ListPane::ListPane(QWidget *content, const ListPlaceholder::Content &placeholder, QWidget *parent)
    : QStackedWidget(parent),
      m_content(content),
      m_placeholder(new ListPlaceholder(placeholder, this)) {
  addWidget(m_placeholder);
  addWidget(m_content);
}

void ListPane::setContentShown(bool shown) {
  setCurrentWidget(shown ? m_content : m_placeholder);
}

}  // namespace lanternix
