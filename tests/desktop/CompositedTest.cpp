#include "desktop/CompositedTest.h"

#include <cstring>

namespace lanternix {

using namespace Qt::StringLiterals;

CompositedTest::CompositedTest(Compositing compositing, DesktopSession::WithManager withManager,
                               QSize screenSize, VirtualDisplay::Outputs outputs)
    : DesktopTest(withManager, DesktopSession::WithBus::yes, screenSize, outputs) {
  if (compositing == Compositing::on) {
    startCompositor();
  }
}

void CompositedTest::startCompositor() {
  m_compositor = std::make_unique<Compositor>(session().displayName());
}

OtherClient &CompositedTest::openBackdrop() {
  constexpr QRect area{150, 90, 980, 750};
  m_backdrop = session().openOtherWindow(area);
  const XConnection &connection = session().windows().connection();
  const quint32 red = QColor(Qt::red).rgb() & RGB_MASK;
  xcb_change_window_attributes(connection, m_backdrop->window(), XCB_CW_BACK_PIXEL, &red);
  xcb_clear_area(connection, 0, m_backdrop->window(), 0, 0, 0, 0);
  require(u"the backdrop"_s, [&] { return isBackdrop(onScreen(area.topLeft() + QPoint(40, 60))); });
  return *m_backdrop;
}

bool CompositedTest::isDarkenedBackdrop(const QColor &color) {
  return color.red() < 250 && color.red() > 60 && color.green() == 0 && color.blue() == 0;
}

QMargins CompositedTest::frameExtents() {
  const QByteArray bytes =
      session().windows().connection().property(program().panel(), "_GTK_FRAME_EXTENTS");
  std::array<qint32, 4> extents{};  // left, right, top, bottom
  if (bytes.size() != qsizetype{sizeof extents}) {
    return {};
  }
  std::memcpy(extents.data(), bytes.constData(), sizeof extents);
  return {extents[0], extents[2], extents[1], extents[3]};
}

QRect CompositedTest::placed(QSize size) {
  QRect rect(QPoint(), size);
  rect.moveCenter(session().windows().workArea().center() - QPoint(0, 60));
  return rect;
}

QColor CompositedTest::onScreen(QPoint point) {
  return session().windows().grabRoot().pixelColor(point);
}

bool CompositedTest::becomesBackdrop(QPoint point) {
  return waitUntil([&] { return isBackdrop(onScreen(point)); });
}

bool CompositedTest::becomesDarkenedBackdrop(QPoint point) {
  return waitUntil([&] { return isDarkenedBackdrop(onScreen(point)); });
}

bool CompositedTest::becomesShadowless() {
  return waitUntil([this] { return frameExtents().isNull(); });
}

bool CompositedTest::becomesShadowed() {
  return waitUntil([this] { return frameExtents() == shadow; });
}

}  // namespace lanternix
