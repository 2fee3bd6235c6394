#include "Utilities/FloatingPanel.h"

#include "Platform/WindowSystem.h"
#include "Utilities/PanelShadow.h"
#include "Utilities/WindowEdgeResizer.h"

#include <QtGui/QCloseEvent>
#include <QtGui/QPainter>
#include <QtGui/QWindow>
#include <QtWidgets/QApplication>
#include <QtWidgets/QVBoxLayout>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace lanternix {

namespace {

constexpr QSize initialSize{700, 500};
constexpr QSize smallestSize{400, 300};

}  // namespace

FloatingPanel::FloatingPanel(WindowSystem &windowSystem)
    : QWidget(nullptr, Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint),
      m_windowSystem(windowSystem) {
  setWindowTitle(u"Lanternix"_s);
  setAttribute(Qt::WA_QuitOnClose, false);
  setMinimumSize(smallestSize);
  resize(initialSize);
  auto *layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);

  m_resizePause.setSingleShot(true);
  m_resizePause.setInterval(300ms);
  connect(&m_resizePause, &QTimer::timeout, this, &FloatingPanel::endResizeByManager);

  // The native window is made now, so that the first show has only to map it. Whether it can be
  // translucent is settled at its making.
  setAttribute(Qt::WA_TranslucentBackground);
  create();
  m_edgeResizer = std::make_unique<WindowEdgeResizer>(windowSystem, *windowHandle());
  connect(m_edgeResizer.get(), &WindowEdgeResizer::finished, this, &FloatingPanel::endResizeByUser);
  windowHandle()->installEventFilter(this);
  connect(windowHandle(), &QWindow::screenChanged, this, &FloatingPanel::updateShape);
  connect(&windowSystem, &WindowSystem::compositingChanged, this,
          &FloatingPanel::updateCompositing);
  connect(&windowSystem, &WindowSystem::panelLost, this, &FloatingPanel::showAnew);
  updateCompositing();
}

FloatingPanel::~FloatingPanel() = default;

void FloatingPanel::setContentView(std::unique_ptr<QWidget> content) {
  layout()->addWidget(content.release());
}

void FloatingPanel::makeKeyAndOrderFront() {
  if (isTakenAway()) {
    hide();
  }
  m_windowSystem.setGeometry(*windowHandle(), m_wantedGeometry);  // where Qt keeps no positions
  if (!isVisible()) {
    m_hasBeenOnScreen = false;
    awaitPlace();
    updateShape();  // the screen may have another scale now
    m_windowSystem.preparePanel(*windowHandle());
  }
  show();
  m_windowSystem.activate(*windowHandle());
  // Shown again this soon after hiding, Qt still takes the window for the one with the keyboard and
  // will not notice that it comes back: the widget has to be told here.
  if (QGuiApplication::focusWindow() == windowHandle() && !isActiveWindow()) {
    QApplication::setActiveWindow(this);
  }
}

bool FloatingPanel::isTakenAway() const {
  return isVisible() && m_hasBeenOnScreen && !m_windowSystem.isOnScreen(*windowHandle());
}

bool FloatingPanel::isInTheUsersHand() const {
  return m_isDragged || m_edgeResizer->isResizing();
}

void FloatingPanel::showAnew() {
  hide();
  makeKeyAndOrderFront();
}

void FloatingPanel::orderOut() {
  if (isVisible()) {
    m_windowSystem.prepareHiding(*windowHandle());
  }
  hide();
}

bool FloatingPanel::event(QEvent *event) {
  if (event->type() == QEvent::WindowActivate) {
    Q_EMIT didBecomeKey();
  }
  return QWidget::event(event);
}

bool FloatingPanel::eventFilter(QObject * /*watched*/, QEvent *event) {
  // Keys that were on their way when the window was hidden must not be typed into the next search.
  const bool isKey = event->type() == QEvent::KeyPress || event->type() == QEvent::KeyRelease;
  return isKey && !isVisible();
}

void FloatingPanel::closeEvent(QCloseEvent *event) {
  event->ignore();
  Q_EMIT closeRequested();
}

void FloatingPanel::setFrame(const QRect &frame) {
  m_wantedGeometry = frame.marginsAdded(contentsMargins());
  setGeometry(m_wantedGeometry);
  if (isVisible()) {
    // The window of a monitor that is gone has kept its size in that monitor's pixels. Qt does not
    // tell the widget, which then sees no need to ask for the size that it has already.
    m_windowSystem.setGeometry(*windowHandle(), m_wantedGeometry);
    awaitPlace();
    update();
  }
}

void FloatingPanel::awaitPlace() {
  m_resizePause.stop();  // nobody's wish any more
  m_hasBeenSeen = false;
  m_hasHadItsSize = false;
  m_isInPlace = false;
}

/// A window manager that puts the window into a frame of its own moves that to its place later, and
/// need not say so. Asked once more for the same, it has to.
void FloatingPanel::confirmPlace() {
  if (!m_hasBeenSeen) {
    return;  // it has been given another frame meanwhile, which will be confirmed in its turn
  }
  m_isInPlace = isInTheUsersHand() || windowHandle()->geometry() == m_wantedGeometry;
  m_hasHadItsSize =
      m_edgeResizer->isResizing() || windowHandle()->size() == m_wantedGeometry.size();
  if (!m_isInPlace) {
    m_windowSystem.setGeometry(*windowHandle(), m_wantedGeometry);
  }
}

void FloatingPanel::moveEvent(QMoveEvent * /*event*/) {
  m_isInPlace = m_isInPlace || m_hasBeenSeen;
}

void FloatingPanel::paintEvent(QPaintEvent *event) {
  m_hasBeenOnScreen = true;
  if (!m_hasBeenSeen) {
    m_hasBeenSeen = true;
    QMetaObject::invokeMethod(this, &FloatingPanel::confirmPlace, Qt::QueuedConnection);
  }
  const QRect inner = contentsRect();
  const bool isClearOfCorners =
      inner.adjusted(cornerRadius, 0, -cornerRadius, 0).contains(event->rect()) ||
      inner.adjusted(0, cornerRadius, 0, -cornerRadius).contains(event->rect());
  if (testAttribute(Qt::WA_TranslucentBackground) && !isClearOfCorners) {
    QPainter painter(this);
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    painter.fillRect(event->rect(), Qt::transparent);  // what an older picture may have left
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
    PanelShadow::paint(painter, inner, cornerRadius);
  }
}

void FloatingPanel::resizeEvent(QResizeEvent *event) {
  if (m_edgeResizer) {  // which comes after the first size
    updateShape();
  }
  // Until it has its size it is the window manager that fits the window in, not the user.
  if (event->spontaneous() && m_hasHadItsSize && !m_edgeResizer->isResizing()) {
    m_resizePause.start();
  }
  m_hasHadItsSize = m_hasHadItsSize || (m_hasBeenSeen && size() == m_wantedGeometry.size());
}

void FloatingPanel::hideEvent(QHideEvent * /*event*/) {
  m_isDragged = false;
  if (m_resizePause.isActive()) {
    endResizeByManager();
  }
}

/// A window may be back at the size that it was given: that is nobody's wish.
void FloatingPanel::endResizeByManager() {
  m_resizePause.stop();
  if (size() != m_wantedGeometry.size()) {
    endResizeByUser();
  }
}

void FloatingPanel::endResizeByUser() {
  m_wantedGeometry = geometry();
  m_hasHadItsSize = true;
  Q_EMIT didEndLiveResize();
}

void FloatingPanel::updateCompositing() {
  if (m_resizePause.isActive()) {
    endResizeByManager();  // before the size is one that is given
  }
  const bool isOnItsWay = isVisible() && !m_isInPlace;
  const QRect frameBefore =
      isOnItsWay ? m_wantedGeometry.marginsRemoved(contentsMargins()) : frame();
  const bool isComposited = m_windowSystem.isComposited();
  const QMargins shadow = isComposited ? PanelShadow::margins : QMargins();
  setAttribute(Qt::WA_TranslucentBackground, isComposited);
  setContentsMargins(shadow);
  m_edgeResizer->setMargins(shadow);
  setMinimumSize(smallestSize.grownBy(shadow));
  setFrame(frameBefore);
  updateShape();
  update();
}

void FloatingPanel::updateShape() {
  m_windowSystem.setFrame(
      *windowHandle(),
      {.size = frame().size(), .cornerRadius = cornerRadius, .shadow = contentsMargins()});
}

// A press that no view wants reaches the window: it is the background.

void FloatingPanel::mousePressEvent(QMouseEvent *event) {
  if (event->button() == Qt::LeftButton) {
    m_dragOffset = event->position().toPoint();
    m_isDragged = !m_windowSystem.takeDrag(*windowHandle(), {}, m_dragOffset);
  }
}

void FloatingPanel::mouseMoveEvent(QMouseEvent *event) {
  m_isDragged = m_isDragged && event->buttons().testFlag(Qt::LeftButton);
  if (m_isDragged) {
    const QPoint position = m_windowSystem.pointerPosition(*event) - m_dragOffset;
    m_windowSystem.setGeometry(*windowHandle(), {position, size()});
    update(0, 0, 1, 1);  // a move needs no other picture
  }
}

void FloatingPanel::mouseReleaseEvent(QMouseEvent *event) {
  m_isDragged = m_isDragged && event->button() != Qt::LeftButton;
}

}  // namespace lanternix
