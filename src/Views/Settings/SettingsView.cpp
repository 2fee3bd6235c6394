#include "Views/Settings/SettingsView.h"

#include "Views/Settings/AboutTab.h"
#include "Views/Settings/DataSettingsTab.h"
#include "Views/Settings/GeneralSettingsTab.h"
#include "Views/Settings/GroupsSettingsTab.h"
#include "Views/Settings/SettingsTabStrip.h"
#include "Views/Style/DividerLine.h"

#include <QtGui/QGuiApplication>
#include <QtGui/QHideEvent>
#include <QtGui/QScreen>
#include <QtGui/QShortcut>
#include <QtWidgets/QStackedWidget>
#include <QtWidgets/QVBoxLayout>

#include <utility>

using namespace Qt::StringLiterals;

namespace lanternix {

namespace {

constexpr QSize smallestSize{600, 480};
constexpr QSize firstSize{720, 540};
constexpr int stripPadding = 8;

/// \p position, or a corner of the primary screen when the title bar of a window of this width
/// would be on none.
QPoint onAScreen(QPoint position, int width) {
  const bool isSeen = QGuiApplication::screenAt(position + QPoint(width / 2, 0)) != nullptr;
  return isSeen ? position : QGuiApplication::primaryScreen()->availableGeometry().topLeft();
}

}  // namespace

SettingsView::SettingsView(AppState &appState, LoginItem &loginItem, FileChooser &fileChooser)
    : m_strip(new SettingsTabStrip(this)), m_tabs(new QStackedWidget(this)) {
  setWindowTitle(u"Lanternix Settings"_s);
  setMinimumSize(smallestSize);
  resize(firstSize);

  auto *layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, stripPadding, 0, 0);
  layout->setSpacing(0);
  layout->addWidget(m_strip, 0, Qt::AlignHCenter);
  layout->addSpacing(stripPadding);
  layout->addWidget(new DividerLine(this));
  layout->addWidget(m_tabs, 1);

  addTab(u"folder"_s, u"Groups"_s, [&appState, &fileChooser](QWidget *parent) {
    return new GroupsSettingsTab(appState, fileChooser, parent);
  });
  addTab(u"gear"_s, u"Settings"_s, [&appState, &loginItem](QWidget *parent) {
    return new GeneralSettingsTab(appState, loginItem, parent);
  });
  addTab(u"externaldrive"_s, u"Data"_s, [&appState, &fileChooser](QWidget *parent) {
    return new DataSettingsTab(appState, fileChooser, parent);
  });
  addTab(u"info.circle"_s, u"About"_s, [](QWidget *parent) { return new AboutTab(parent); });
  connect(m_strip, &QTabBar::currentChanged, this, &SettingsView::showTab);
  showTab(0);
  addKeys();
  m_strip->setFocus();
}

void SettingsView::addTab(const QString &symbol, const QString &name, MakeTab make) {
  m_strip->addSymbolTab(symbol, name);
  m_makers.push_back(std::move(make));
  auto *place = new QWidget(m_tabs);
  auto *layout = new QVBoxLayout(place);
  layout->setContentsMargins(0, 0, 0, 0);
  m_tabs->addWidget(place);
}

void SettingsView::showTab(int index) {
  if (const MakeTab make = std::exchange(m_makers.at(static_cast<size_t>(index)), nullptr)) {
    QWidget *place = m_tabs->widget(index);
    place->layout()->addWidget(make(place));
  }
  m_tabs->setCurrentIndex(index);
}

void SettingsView::showNeighbour(int step) {
  m_strip->setCurrentIndex((m_strip->currentIndex() + step + m_strip->count()) % m_strip->count());
}

void SettingsView::addKeys() {
  const auto add = [this](const QList<QKeySequence> &keys, auto action) {
    auto *shortcut = new QShortcut(this);
    shortcut->setKeys(keys);
    connect(shortcut, &QShortcut::activated, this, action);
  };
  add({Qt::CTRL | Qt::Key_Tab, Qt::CTRL | Qt::Key_PageDown}, [this] { showNeighbour(1); });
  add({Qt::CTRL | Qt::SHIFT | Qt::Key_Tab, Qt::CTRL | Qt::Key_Backtab,
       Qt::CTRL | Qt::SHIFT | Qt::Key_Backtab, Qt::CTRL | Qt::Key_PageUp},
      [this] { showNeighbour(-1); });
  add({Qt::CTRL | Qt::Key_W, Qt::META | Qt::Key_W}, [this] { close(); });
}

void SettingsView::present() {
  if (!isVisible() && m_lastPosition) {
    // Window managers place a window that is shown again anew.
    move(onAScreen(*m_lastPosition, width()));
  }
  setWindowState(windowState() & ~Qt::WindowMinimized);
  show();
  raise();
}

void SettingsView::hideEvent(QHideEvent *event) {
  if (!event->spontaneous()) {  // not merely minimised
    m_lastPosition = pos();
  }
  QWidget::hideEvent(event);
}

}  // namespace lanternix
