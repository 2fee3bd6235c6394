#include "Views/Panel/PopupPanelView.h"

#include "App/AppState.h"
#include "Utilities/FloatingPanel.h"
#include "Views/Panel/EmptyStateView.h"
#include "Views/Panel/NoResultsView.h"
#include "Views/Panel/PanelAccessibility.h"
#include "Views/Panel/PanelAnnouncer.h"
#include "Views/Panel/PanelFooterView.h"
#include "Views/Panel/PanelHeaderView.h"
#include "Views/Panel/PanelListModel.h"
#include "Views/Panel/PanelListView.h"
#include "Views/Panel/SearchBarView.h"
#include "Views/Style/DividerLine.h"
#include "Views/Style/FillStyle.h"
#include "Views/Style/Material.h"
#include "Views/Style/SlimScrollBar.h"
#include "Views/Style/SymbolButton.h"
#include "Views/Style/SymbolLabel.h"

#include <QtCore/QCoreApplication>
#include <QtGui/QContextMenuEvent>
#include <QtGui/QKeyEvent>
#include <QtGui/QPainter>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QScrollArea>
#include <QtWidgets/QStackedLayout>
#include <QtWidgets/QVBoxLayout>

#include <memory>

using namespace Qt::StringLiterals;

namespace lanternix {

namespace {

/// Whether the key changes a text, rather than being a command.
bool isTyped(const QKeyEvent &press) {
  if ((press.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) != 0) {
    return false;
  }
  const QString text = press.text();
  return press.key() == Qt::Key_Backspace ||
         (!text.isEmpty() && text.front().category() != QChar::Other_Control);
}

}  // namespace

PopupPanelView::PopupPanelView(AppState &appState, QWidget *parent)
    : QWidget(parent),
      m_appState(appState),
      m_model(new PanelListModel(appState, this)),
      m_list(new PanelListView(appState, *m_model, this)),
      m_searchBar(new SearchBarView(appState, this)),
      m_emptyState(new EmptyStateView(this)),
      m_noResults(new NoResultsView(this)),
      m_messages(new QScrollArea(this)),
      m_body(nullptr) {
  auto *header = new PanelHeaderView(this);
  connect(header, &PanelHeaderView::settingsRequested, this, &PopupPanelView::openSettings);
  connect(m_emptyState, &EmptyStateView::settingsRequested, this, &PopupPanelView::openSettings);

  auto body = std::make_unique<QStackedLayout>();
  m_body = body.get();
  m_body->addWidget(m_list);
  m_body->addWidget(makeMessages());

  auto *layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(0);
  layout->addWidget(header);
  layout->addWidget(makeSearchRow());
  layout->addWidget(new DividerLine(this));
  layout->addLayout(body.release(), 1);
  layout->addWidget(new DividerLine(this));
  layout->addWidget(new PanelFooterView(appState, this));
  PanelAccessibility::readInOrderOf(*layout);

  m_searchBar->focusProxy()->installEventFilter(this);
  connect(m_model, &QAbstractItemModel::modelReset, this, &PopupPanelView::updateMessages);
  updateMessages();
  new PanelAnnouncer(appState, *m_list, this);
}

QWidget *PopupPanelView::makeSearchRow() {
  auto *row = new QWidget(this);
  auto *layout = new QHBoxLayout(row);
  layout->setContentsMargins(20, 0, 20 - SymbolButton::margin, 14);
  constexpr int fieldMargin = 2;  // which a line edit leaves beside its text
  layout->setSpacing(10 - fieldMargin);
  layout->addWidget(new SymbolLabel(
      u"magnifyingglass"_s, TextStyle::title3,
      [](const QPalette &palette) { return fillColor(FillStyle::secondary, palette); }, row));
  layout->addWidget(m_searchBar, 1);
  return row;
}

QWidget *PopupPanelView::makeMessages() {
  auto *content = new QWidget(m_messages);
  auto *layout = new QVBoxLayout(content);
  layout->setContentsMargins(0, 10, 0, 10);
  layout->setSpacing(4);
  layout->addWidget(m_emptyState);
  layout->addWidget(m_noResults);
  layout->addStretch();
  m_messages->setWidget(content);
  m_messages->setWidgetResizable(true);
  m_messages->setFrameShape(QFrame::NoFrame);
  m_messages->setFocusPolicy(Qt::NoFocus);
  m_messages->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  new SlimScrollBar(m_messages);  // which owns it
  m_messages->viewport()->setAutoFillBackground(false);
  content->setAutoFillBackground(false);
  return m_messages;
}

void PopupPanelView::updateMessages() {
  // Two tests of their own: a search that finds nothing while no recent items are on show leaves
  // both messages, one above the other.
  const bool nothingFiltered = m_appState.filteredGroupPositions().empty();
  const bool showsRecent =
      m_appState.showRecentItems() && !m_appState.recentItemPositions().empty();
  const bool empty = nothingFiltered && !showsRecent;
  const bool noResults = nothingFiltered && !m_appState.searchQuery().isEmpty();
  m_emptyState->setVisible(empty);
  m_noResults->setVisible(noResults);
  QWidget *body = empty || noResults ? static_cast<QWidget *>(m_messages) : m_list;
  if (body != m_body->currentWidget()) {
    m_body->setCurrentWidget(body);  // which raises it
    PanelAccessibility::readInOrderOf(*layout());
  }
}

void PopupPanelView::openSettings() {
  m_appState.hidePanel();
  if (m_appState.onOpenSettings) {
    m_appState.onOpenSettings();
  }
}

void PopupPanelView::focusSearch() {
  m_searchBar->focusField();
}

bool PopupPanelView::openMenuFor(const QContextMenuEvent &event) {
  return event.reason() == QContextMenuEvent::Keyboard && m_list->openMenuOfSelection();
}

// The search field would open a menu of its own, as it does while no item is selected.
bool PopupPanelView::eventFilter(QObject * /*watched*/, QEvent *event) {
  return event->type() == QEvent::ContextMenu &&
         openMenuFor(*static_cast<QContextMenuEvent *>(event));
}

void PopupPanelView::contextMenuEvent(QContextMenuEvent *event) {
  event->setAccepted(openMenuFor(*event));
}

// What comes here was of no use to the view that has the keyboard.
void PopupPanelView::keyPressEvent(QKeyEvent *event) {
  if (event->key() == Qt::Key_F10 && event->modifiers() == Qt::ShiftModifier) {
    event->setAccepted(m_list->openMenuOfSelection());
    return;
  }
  QWidget *field = m_searchBar->focusProxy();
  if (field->hasFocus() || !isTyped(*event)) {
    QWidget::keyPressEvent(event);
    return;
  }
  focusSearch();
  QCoreApplication::sendEvent(field, event);
}

void PopupPanelView::paintEvent(QPaintEvent * /*event*/) {
  // The corners of a window that is blended with what is below it are round; those of any other
  // are cut off by its shape.
  QPainter painter(this);
  if (!window()->testAttribute(Qt::WA_TranslucentBackground)) {
    painter.fillRect(rect(), palette().color(QPalette::Window));
    return;
  }
  // Not every window system hands over a clean sheet: the material replaces what an older picture
  // has left, or it would grow denser with each.
  painter.setCompositionMode(QPainter::CompositionMode_Source);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(materialColor(palette()));
  painter.drawRoundedRect(rect(), FloatingPanel::cornerRadius, FloatingPanel::cornerRadius);
}

}  // namespace lanternix
