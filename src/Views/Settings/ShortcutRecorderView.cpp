#include "Views/Settings/ShortcutRecorderView.h"

#include "Platform/KeyCodes.h"
#include "Platform/KeyboardCapture.h"
#include "Services/HotkeyService.h"
#include "Views/Style/Contrast.h"
#include "Views/Style/FillStyle.h"
#include "Views/Style/FocusRing.h"
#include "Views/Style/Symbol.h"
#include "Views/Style/SystemColors.h"
#include "Views/Style/TextStyle.h"

#include <QtCore/QCoreApplication>
#include <QtGui/QFontDatabase>
#include <QtGui/QKeyEvent>
#include <QtGui/QPainter>
#include <QtGui/QWindow>

#include <algorithm>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace lanternix {

namespace {

constexpr int sidePadding = 12;
constexpr int linePadding = 6;
constexpr int spacing = 4;
constexpr double radius = 8;
constexpr float groundOpacity = 0.08F;

quint32 shortcutModifiers(Qt::KeyboardModifiers modifiers) {
  quint32 result = 0;
  result |= modifiers.testFlag(Qt::ShiftModifier) ? HotkeyShortcut::shift : 0U;
  result |= modifiers.testFlag(Qt::ControlModifier) ? HotkeyShortcut::control : 0U;
  result |= modifiers.testFlag(Qt::AltModifier) ? HotkeyShortcut::option : 0U;
  result |= modifiers.testFlag(Qt::MetaModifier) ? HotkeyShortcut::command : 0U;
  return result;
}

}  // namespace

ShortcutRecorderView::ShortcutRecorderView(HotkeyService &hotkeyService, QWidget *parent)
    : QAbstractButton(parent), m_hotkeyService(hotkeyService) {
  setAccessibleName(u"Toggle Popup Panel"_s);
  setFocusPolicy(Qt::StrongFocus);
  setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
  connect(this, &QAbstractButton::clicked, this,
          [this] { m_isRecording ? stopRecording() : startRecording(); });
  connect(&hotkeyService, &HotkeyService::currentShortcutChanged, this,
          &ShortcutRecorderView::updateLabel);
  m_captureLimit.setSingleShot(true);
  m_captureLimit.setInterval(10s);
  connect(&m_captureLimit, &QTimer::timeout, this, [this] { captureKeyboard(false); });
  updateLabel();
}

ShortcutRecorderView::~ShortcutRecorderView() {
  watchKeys(false);
}

void ShortcutRecorderView::startRecording() {
  setRecording(true);
  watchKeys(true);
}

void ShortcutRecorderView::stopRecording() {
  setRecording(false);
  watchKeys(false);
}

void ShortcutRecorderView::record(quint32 keyCode, quint32 modifiers, const QKeyEvent &press) {
  m_hotkeyService.setCurrentShortcut({keyCode, modifiers});
  setRecording(false);
  m_heldKey = press.nativeScanCode();
}

void ShortcutRecorderView::setRecording(bool recording) {
  m_isRecording = recording;
  updateLabel();
}

void ShortcutRecorderView::watchKeys(bool watch) {
  m_heldKey.reset();
  if (watch == m_isWatching) {
    return;
  }
  m_isWatching = watch;
  m_hotkeyService.setPaused(watch);
  captureKeyboard(watch && window()->isActiveWindow());
  if (watch) {
    QCoreApplication::instance()->installEventFilter(this);
  } else {
    QCoreApplication::instance()->removeEventFilter(this);
  }
}

void ShortcutRecorderView::captureKeyboard(bool capture) {
  QWindow *handle = window()->windowHandle();
  if (capture == m_isCapturing || handle == nullptr) {
    return;
  }
  m_isCapturing = capture;
  setKeyboardCaptured(*handle, capture);
  if (capture) {
    m_captureLimit.start();
  } else {
    m_captureLimit.stop();
  }
}

bool ShortcutRecorderView::eventFilter(QObject *watched, QEvent *event) {
  // Keys come to the native window first; their way on to a widget is not looked at again.
  if (!watched->isWindowType()) {
    return false;
  }
  switch (event->type()) {
    case QEvent::ShortcutOverride:  // asks who wants the key, before any command of a window does
    case QEvent::KeyPress:
      return handlePress(*static_cast<QKeyEvent *>(event));
    case QEvent::KeyRelease:
      return handleRelease(*static_cast<QKeyEvent *>(event));
    default:
      return false;
  }
}

bool ShortcutRecorderView::handlePress(QKeyEvent &press) {
  if (!m_isRecording) {
    // The recorded key, held so long that it repeats.
    return m_heldKey == press.nativeScanCode();
  }
  const quint32 modifiers = shortcutModifiers(press.modifiers());
  if (modifiers == 0 || KeyCodes::isModifier(press.nativeVirtualKey())) {
    return false;
  }
  const std::optional<quint32> keyCode =
      KeyCodes::virtualCodeForPress(press.nativeScanCode(), press.nativeVirtualKey());
  if (!keyCode) {
    return false;  // a key that no shortcut can be stored with
  }
  press.accept();
  if (press.type() == QEvent::KeyPress) {
    record(*keyCode, modifiers, press);
  }
  return true;
}

bool ShortcutRecorderView::handleRelease(const QKeyEvent &release) {
  if (m_heldKey != release.nativeScanCode()) {
    return false;
  }
  if (!release.isAutoRepeat()) {
    watchKeys(false);
  }
  return true;
}

bool ShortcutRecorderView::event(QEvent *event) {
  if (event->type() == QEvent::WindowDeactivate) {
    stopRecording();
  } else if (event->type() == QEvent::WindowActivate) {
    captureKeyboard(m_isWatching);
  }
  return QAbstractButton::event(event);
}

void ShortcutRecorderView::changeEvent(QEvent *event) {
  if (event->type() == QEvent::FontChange) {
    updateGeometry();
  }
  QAbstractButton::changeEvent(event);
}

void ShortcutRecorderView::hideEvent(QHideEvent *event) {
  stopRecording();
  QAbstractButton::hideEvent(event);
}

void ShortcutRecorderView::updateLabel() {
  const QString shortcut = m_hotkeyService.currentShortcut().displayString();
  setText(m_isRecording ? u"Press shortcut..."_s : shortcut);
  setAccessibleDescription(text());
  updateGeometry();
  update();
}

QFont ShortcutRecorderView::labelFont() const {
  if (m_isRecording) {
    return textFont(TextStyle::subheadline);
  }
  QFont font = textFont(TextStyle::subheadline, QFont::Medium);
  font.setFamilies(QFontDatabase::systemFont(QFontDatabase::FixedFont).families());
  return font;
}

int ShortcutRecorderView::symbolWidth() const {
  return m_isRecording ? qCeil(Symbol::sideFor(labelFont())) : 0;
}

QSize ShortcutRecorderView::sizeHint() const {
  const QFontMetrics metrics(labelFont());
  const int symbol = m_isRecording ? symbolWidth() + spacing : 0;
  // Two fonts take turns, and the form around must not jump.
  const int lineHeight =
      std::max(metrics.height(), QFontMetrics(textFont(TextStyle::subheadline)).height());
  return {metrics.horizontalAdvance(text()) + symbol + 2 * sidePadding,
          lineHeight + 2 * linePadding};
}

QColor ShortcutRecorderView::tint() const {
  return m_isRecording ? systemColor(SystemColor::red, palette())
                       : fillColor(FillStyle::secondary, palette());
}

QColor ShortcutRecorderView::textColor() const {
  if (!m_isRecording) {
    return fillColor(FillStyle::primary, palette());
  }
  // The red itself would be too light to be read on a light ground.
  const QColor window = palette().color(isDark(palette()) ? QPalette::Window : QPalette::Base);
  return Contrast::readableOn(Contrast::laidOn(window, withOpacity(tint(), groundOpacity)), tint());
}

void ShortcutRecorderView::paintEvent(QPaintEvent * /*event*/) {
  constexpr float idleLineOpacity = 0.2F;
  constexpr float recordingLineOpacity = 0.4F;
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(
      QPen(withOpacity(tint(), m_isRecording ? recordingLineOpacity : idleLineOpacity), 1));
  painter.setBrush(withOpacity(tint(), groundOpacity));
  const QRectF shape = QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5);
  painter.drawRoundedRect(shape, radius, radius);
  if (hasFocus() && !m_isRecording) {
    FocusRing::draw(painter, palette(), shape.adjusted(0.5, 0.5, -0.5, -0.5), radius);
  }

  QRect line = rect().adjusted(sidePadding, linePadding, -sidePadding, -linePadding);
  if (m_isRecording) {
    const QRect mark(line.left(), line.top(), symbolWidth(), line.height());
    Symbol::draw(painter, mark, u"record.circle"_s, Symbol::sideFor(labelFont()), textColor());
    line.setLeft(mark.right() + 1 + spacing);
  }
  painter.setFont(labelFont());
  painter.setPen(textColor());
  painter.drawText(line, Qt::AlignLeft | Qt::AlignVCenter, text());
}

}  // namespace lanternix
