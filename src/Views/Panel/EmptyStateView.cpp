#include "Views/Panel/EmptyStateView.h"

#include "Views/Panel/PanelAccessibility.h"
#include "Views/Style/SymbolIcon.h"
#include "Views/Style/SymbolLabel.h"
#include "Views/Style/TextLabel.h"

#include <QtCore/QEvent>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QVBoxLayout>

#include <memory>

using namespace Qt::StringLiterals;

namespace lanternix {

EmptyStateView::EmptyStateView(QWidget *parent)
    : QWidget(parent), m_button(new QPushButton(u"Open Settings"_s, this)) {
  setAccessibleName(u"No items yet"_s);
  setAccessibleDescription(u"Open Settings to add groups and items"_s);
  constexpr double markSide = 44;
  auto *mark = new SymbolLabel(
      u"arrow.triangle.branch"_s, markSide,
      [](const QPalette &palette) { return fillColor(FillStyle::quaternary, palette); }, this);
  auto *title = new TextLabel(u"No items yet"_s, TextStyle::title3, QFont::Medium,
                              FillStyle::secondary, this);
  auto *hint = new TextLabel(u"Open Settings to add groups and items"_s, TextStyle::subheadline,
                             QFont::Normal, FillStyle::tertiary, this);
  m_button->setDefault(true);
  m_button->setIcon(symbolIcon(u"gearshape"_s));
  m_button->setFocusPolicy(Qt::TabFocus);
  updateButton();
  connect(m_button, &QAbstractButton::clicked, this, &EmptyStateView::settingsRequested);

  auto texts = std::make_unique<QVBoxLayout>();
  texts->setSpacing(6);
  texts->addWidget(title, 0, Qt::AlignHCenter);
  texts->addWidget(hint, 0, Qt::AlignHCenter);

  auto *layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 20, 0, 20);
  layout->setSpacing(16);
  layout->addWidget(mark, 0, Qt::AlignHCenter);
  layout->addLayout(texts.release());
  layout->addWidget(m_button, 0, Qt::AlignHCenter);
  PanelAccessibility::readInOrderOf(*layout);
}

void EmptyStateView::updateButton() {
  m_button->setFont(textFont(TextStyle::subheadline, QFont::Medium));
}

void EmptyStateView::changeEvent(QEvent *event) {
  if (event->type() == QEvent::FontChange) {
    updateButton();
  }
  QWidget::changeEvent(event);
}

}  // namespace lanternix
