#include "Views/Controls/FormView.h"

#include "Views/Controls/FormSection.h"
#include "Views/Style/SlimScrollBar.h"

#include <QtWidgets/QApplication>
#include <QtWidgets/QVBoxLayout>

namespace lanternix {

namespace {

constexpr int padding = 20;
constexpr int sectionSpacing = 18;

}  // namespace

FormView::FormView(QWidget *parent) : QScrollArea(parent) {
  auto *content = new QWidget(this);
  m_sections = new QVBoxLayout(content);
  m_sections->setContentsMargins(padding, padding, padding, padding);
  m_sections->setSpacing(sectionSpacing);
  m_sections->addStretch();
  content->setAutoFillBackground(false);
  setWidget(content);
  setWidgetResizable(true);
  setFrameShape(QFrame::NoFrame);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setFocusPolicy(Qt::NoFocus);
  viewport()->setAutoFillBackground(false);
  new SlimScrollBar(this);  // which owns it
  // What the keyboard moves to comes into sight; what is clicked stays under the pointer.
  connect(qApp, &QApplication::focusChanged, this, [this](QWidget * /*old*/, QWidget *now) {
    const QWidget *page = widget();  // none any more while the form is being deleted
    if (now != nullptr && page != nullptr && page->isAncestorOf(now) &&
        QGuiApplication::mouseButtons() == Qt::NoButton) {
      ensureWidgetVisible(now);
    }
  });
}

void FormView::setPadding(int sides, int ends) {
  m_sections->setContentsMargins(sides, ends, sides, ends);
}

FormSection &FormView::addSection(const QString &title) {
  auto *section = new FormSection(title, widget());
  m_sections->insertWidget(m_sections->count() - 1, section);
  return *section;
}

}  // namespace lanternix
