#include "Views/Panel/SearchBarView.h"

#include "App/AppState.h"
#include "Views/Style/AccentFill.h"
#include "Views/Style/SymbolButton.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QEvent>
#include <QtCore/QSignalBlocker>
#include <QtGui/QGuiApplication>
#include <QtGui/QInputMethod>
#include <QtGui/QInputMethodEvent>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLineEdit>

using namespace Qt::StringLiterals;

namespace lanternix {

SearchBarView::SearchBarView(AppState &appState, QWidget *parent)
    : QWidget(parent),
      m_appState(appState),
      m_field(new QLineEdit(this)),
      m_clearButton(new SymbolButton(u"xmark.circle.fill"_s, TextStyle::body, FillStyle::secondary,
                                     u"Clear Search"_s, this)) {
  m_field->setPlaceholderText(u"Search... or group: query to scope"_s);
  m_field->setAccessibleName(u"Search"_s);
  m_field->setAccessibleDescription(m_field->placeholderText());
  m_field->installEventFilter(this);
  m_field->setFrame(false);
  m_field->setTextMargins(0, 0, 0, 0);
  updateColors();
  updateFont();
  setFocusProxy(m_field);

  auto *layout = new QHBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(m_field, 1);
  layout->addWidget(m_clearButton);

  connect(m_field, &QLineEdit::textChanged, &m_appState, &AppState::setSearchQuery);
  connect(m_field, &QLineEdit::returnPressed, &m_appState, &AppState::openSelectedOrFirstItem);
  // The button keeps out of the focus, so that typing goes on after a click on it.
  m_clearButton->setFocusPolicy(Qt::NoFocus);
  connect(m_clearButton, &QAbstractButton::clicked, &m_appState,
          [this] { m_appState.setSearchQuery({}); });
  connect(&m_appState, &AppState::searchQueryChanged, this, &SearchBarView::readQuery);
  readQuery();
}

void SearchBarView::focusField() {
  m_field->setFocus(Qt::ActiveWindowFocusReason);
}

void SearchBarView::readQuery() {
  // Setting an unchanged text would move the cursor to its end.
  if (m_field->text() != m_appState.searchQuery()) {
    abandonComposition();
    const QSignalBlocker blocker(m_field);
    m_field->setText(m_appState.searchQuery());
  }
  m_clearButton->setVisible(!m_appState.searchQuery().isEmpty());
}

void SearchBarView::updateColors() {
  QPalette colors;
  colors.setColor(QPalette::Base, Qt::transparent);
  const AccentFill selection = AccentFill::of(palette());
  colors.setColor(QPalette::Highlight, selection.ground);
  colors.setColor(QPalette::HighlightedText, selection.text);
  m_field->setPalette(colors);
}

void SearchBarView::abandonComposition() {
  // Whether or not the field still has the focus, which a window that is hidden loses first.
  QGuiApplication::inputMethod()->reset();
  // Input methods forget what they compose without taking it off the field.
  QInputMethodEvent nothing;
  QCoreApplication::sendEvent(m_field, &nothing);
}

void SearchBarView::hideEvent(QHideEvent * /*event*/) {
  abandonComposition();
}

bool SearchBarView::eventFilter(QObject * /*watched*/, QEvent *event) {
  if (event->type() != QEvent::InputMethod || m_appState.isPanelVisible()) {
    return false;
  }
  // Some input methods hand over what they were composing when the panel is hidden and the field
  // loses the keyboard. It must not be typed into the next search.
  const auto *input = static_cast<QInputMethodEvent *>(event);
  return !input->commitString().isEmpty() || !input->preeditString().isEmpty();
}

void SearchBarView::updateFont() {
  m_field->setFont(textFont(TextStyle::title3));
}

void SearchBarView::changeEvent(QEvent *event) {
  if (event->type() == QEvent::FontChange) {
    updateFont();
  } else if (event->type() == QEvent::PaletteChange) {
    updateColors();
  }
  QWidget::changeEvent(event);
}

}  // namespace lanternix
