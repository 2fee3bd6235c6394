#include "desktop/DesktopTest.h"

#include "support/HarnessError.h"

#include <X11/keysym.h>

namespace lanternix {

using namespace Qt::StringLiterals;

namespace {

QRect difference(const QImage &before, const QImage &after, const QRect &area) {
  QRect changed;
  const QRect common = area & before.rect() & after.rect();
  for (int y = common.top(); y <= common.bottom(); ++y) {
    for (int x = common.left(); x <= common.right(); ++x) {
      if (before.pixel(x, y) != after.pixel(x, y)) {
        changed |= QRect(x, y, 1, 1);
      }
    }
  }
  return changed;
}

}  // namespace

DesktopTest::DesktopTest(DesktopSession::WithManager withManager, DesktopSession::WithBus withBus,
                         QSize screenSize, VirtualDisplay::Outputs outputs)
    : m_session(withManager, withBus, screenSize, outputs) {}

void DesktopTest::start(const SampleGroups &groups) {
  ProgramEnvironment::write(m_session.home().dataFile(), groups.json());
  start();
}

void DesktopTest::start(Program::Disk disk) {
  // Away from where the panel comes up: a row under the pointer lights up, and a test that looks
  // for the selected one would take it for that.
  input().moveTo({2, 2});
  m_program = std::make_unique<Program>(m_session, disk);
  m_program->waitForPanel();
}

void DesktopTest::startHidden(const SampleGroups &groups) {
  start(groups);
  input().tap(XK_Escape);
  require(u"the panel to hide"_s, [this] { return !isShown(); });
  m_program->settle();
}

void DesktopTest::pressShortcut() {
  input().tap(XK_space, {XK_Super_L, XK_Shift_L});
}

void DesktopTest::showByShortcut() {
  require(u"a window with the keyboard"_s,
          [this] { return session().windows().isKeyboardInUse(); });
  pressShortcut();
  m_program->waitForPanel();
}

bool DesktopTest::becomesShown() {
  return waitUntil([this] { return isShown(); });
}

bool DesktopTest::becomesHidden() {
  return waitUntil([this] { return !isShown(); });
}

QRect DesktopTest::panelGeometry() {
  return m_session.windows().geometry(m_program->panel());
}

QString DesktopTest::marking(const QString &name) const {
  return m_session.home().marking(name);
}

bool DesktopTest::becomesMarked(const QString &name) const {
  return m_session.home().becomesMarked(name);
}

bool DesktopTest::isMarked(const QString &name) const {
  return m_session.home().isMarked(name);
}

SampleGroups DesktopTest::commands(const QStringList &names) const {
  SampleGroups groups;
  groups.group(u"Commands"_s);
  for (const QString &name : names) {
    groups.command(name, marking(name));
  }
  return groups;
}

QPoint DesktopTest::onPanel(QPoint point) {
  return panelGeometry().topLeft() + point;
}

QRect DesktopTest::changedArea(const QImage &before, const QRect &area) {
  QRect changed;
  require(u"the picture to change"_s, [&] {
    // The same twice, because a repaint may arrive in pieces.
    const QRect now = difference(before, picture(), area);
    return std::exchange(changed, now) == now && !now.isEmpty();
  });
  return changed;
}

QRect DesktopTest::selectNextRow() {
  // The list lies below the search row, whose caret blinks.
  constexpr int listTop = 90;
  const QImage before = settledPicture();
  input().tap(XK_Down);
  return changedArea(before, before.rect().adjusted(0, listTop, 0, 0));
}

void DesktopTest::dragPanel(QPoint from, QPoint to, const QRect &expected) {
  const QRect start = panelGeometry();
  input().moveTo(from);
  input().pressButton();
  input().moveTo(from + (to - from) / 4);
  waitUntil([&] { return panelGeometry() != start; });
  input().moveTo(to);
  if (!waitUntil([&] { return panelGeometry() == expected; })) {
    const QRect now = panelGeometry();
    throw HarnessError(u"the drag led to %1,%2 %3x%4"_s.arg(now.x())
                           .arg(now.y())
                           .arg(now.width())
                           .arg(now.height()));
  }
  input().releaseButton();
}

}  // namespace lanternix
