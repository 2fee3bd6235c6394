#include "PressToPicture.h"

#include "HeldKeyProbe.h"
#include "ProcessFigures.h"
#include "support/HarnessError.h"
#include "support/Program.h"
#include "support/WaitUntil.h"

#include <QtCore/QThread>

#include <X11/keysym.h>

namespace lanternix {

using namespace Qt::StringLiterals;

namespace {

using Clock = std::chrono::steady_clock;

/// A place on the first row of the list, from the panel's corner.
constexpr QPoint firstRow{60, 120};
constexpr quint16 commandAndShift = XCB_MOD_MASK_4 | XCB_MOD_MASK_SHIFT;

}  // namespace

WholeProgramFigures PressToPicture::measureProgram(const QByteArray &dataFile) {
  DesktopSession session;
  ProgramEnvironment::write(session.home().dataFile(), dataFile);
  WholeProgramFigures figures;
  measureStarts(session, figures);

  Program program(session);
  program.waitForPanel();
  measurePresses(session, program.panel(), figures);
  measureRest(program.processId(), figures);
  measureWheel(session, program.panel(), figures);
  measureWakeUpsWhileShown(session, program, figures);
  return figures;
}

WholeProgramFigures PressToPicture::measureFolding(const QByteArray &dataFile) {
  DesktopSession session;
  ProgramEnvironment::write(session.home().dataFile(), dataFile);
  Program program(session);
  program.waitForPanel();
  PictureWatch watch(session.displayName(), program.panel());
  const QPoint header = session.windows().geometry(program.panel()).topLeft() + firstRow;
  session.input().moveTo(header);
  watch.waitForQuiet();

  WholeProgramFigures figures;
  for (int folding = 0; folding < m_effort.foldings; ++folding) {
    const auto before = ProcessFigures::processorTime(program.processId());
    const auto times = watch.timesAfter([&] { session.input().click(header); });
    const auto spent = ProcessFigures::processorTime(program.processId()) - before;
    const bool unfolds = folding % 2 == 0;
    // The caret may blink as soon as the group has come to rest.
    constexpr PictureWatch::Duration unfolding{205};
    const auto gap = times.longestGap(unfolding);
    if (unfolds && gap.has_value()) {
      figures.longestGapWhileUnfolding.add(*gap);
      figures.processorTimePerFrame.add(spent / static_cast<double>(times.frames.size()));
    }
  }
  return figures;
}

WholeProgramFigures PressToPicture::measureBareClient() {
  DesktopSession session;
  ChildProcess client(QStringLiteral(BARE_CLIENT), u"lanternix"_s);
  client.start({}, session.variables());
  const HeldKeyProbe shortcut(session.displayName(), XK_space, commandAndShift);
  require(u"the bare client"_s, [&] { return shortcut.isHeld(); });
  session.input().tap(XK_space, {XK_Super_L, XK_Shift_L});
  std::optional<xcb_window_t> window;
  require(u"the bare client's window"_s, [&] {
    window = session.windows().find(u"bare"_s, u"Bare"_s);
    return window.has_value() && session.windows().hasFocus(*window);
  });
  WholeProgramFigures figures;
  measurePresses(session, *window, figures);
  measureRest(client.processId(), figures);
  return figures;
}

void PressToPicture::addIfAny(Series &series, const std::optional<PictureWatch::Duration> &duration,
                              const QString &what) {
  if (!duration.has_value()) {
    throw HarnessError(u"no "_s + what);
  }
  series.add(*duration);
}

void PressToPicture::measureStarts(DesktopSession &session, WholeProgramFigures &figures) const {
  const HeldKeyProbe shortcut(session.displayName(), XK_space, commandAndShift);
  // The first start reads everything from the disk and makes the day's backup, so it does not
  // count.
  for (int start = 0; start <= m_effort.starts; ++start) {
    const Clock::time_point begin = Clock::now();
    Program program(session);
    require(u"the held shortcut"_s, [&] { return shortcut.isHeld(); });
    const Series::Duration toHeld = Clock::now() - begin;
    require(u"the panel"_s, [&] {
      return program.isPanelShown() &&
             WindowProbe::hasContent(session.windows().grab(program.panel()));
    });
    const Series::Duration toShown = Clock::now() - begin;
    if (start > 0) {
      figures.startToHeldShortcut.add(toHeld);
      figures.startToShownPanel.add(toShown);
    }
  }
}

void PressToPicture::measurePresses(DesktopSession &session, xcb_window_t window,
                                    WholeProgramFigures &figures) const {
  InputDriver &input = session.input();
  PictureWatch watch(session.displayName(), window);
  const auto hide = [&] {
    const auto time = watch.timeToUnmapped([&] { input.pressAndFlush(XK_Escape); });
    input.release(XK_Escape);
    watch.waitForQuiet();
    return time;
  };

  input.moveTo({2, 2});  // away from the rows, which would light up
  hide();
  // The first press finds nothing warm, so it does not count.
  for (int press = 0; press <= m_effort.presses; ++press) {
    WholeProgramFigures unused;
    WholeProgramFigures &record = press > 0 ? figures : unused;
    input.press(XK_Super_L);
    input.press(XK_Shift_L);
    const auto shown = watch.timesAfter([&] { input.pressAndFlush(XK_space); });
    input.release(XK_space);
    input.release(XK_Shift_L);
    input.release(XK_Super_L);
    addIfAny(record.pressToFirstPicture, shown.firstPicture, u"picture after the press"_s);
    addIfAny(record.pressToSettled, shown.settled, u"picture after the press"_s);
    require(u"the panel to have the keyboard"_s,
            [&] { return session.windows().hasFocus(window); });
    if (session.windows().wmClass(window).value(0) != u"bare"_s) {
      const auto typed = watch.timesAfter([&] { input.pressAndFlush(XK_e); });
      input.release(XK_e);
      addIfAny(record.letterToSettled, typed.settled, u"change after the letter"_s);
    }
    addIfAny(record.escapeToUnmapped, hide(), u"end of the panel after Escape"_s);
  }
}

void PressToPicture::measureWheel(DesktopSession &session, xcb_window_t window,
                                  WholeProgramFigures &figures) const {
  constexpr quint8 wheelUp = 4;
  constexpr quint8 wheelDown = 5;
  PictureWatch watch(session.displayName(), window);
  session.input().tap(XK_space, {XK_Super_L, XK_Shift_L});
  require(u"the panel to have the keyboard"_s, [&] { return session.windows().hasFocus(window); });
  session.input().moveTo(session.windows().geometry(window).center());
  watch.waitForQuiet();
  // Down and up by turns, so that every step finds something to scroll.
  for (int step = 0; step < m_effort.wheelSteps; ++step) {
    const quint8 button = step % 2 == 0 ? wheelDown : wheelUp;
    const auto times = watch.timesAfter([&] { session.input().pressButton(button); });
    session.input().releaseButton(button);
    addIfAny(figures.wheelStepToSettled, times.settled, u"change after a wheel step"_s);
  }
}

void PressToPicture::measureWakeUpsWhileShown(DesktopSession &session, const Program &program,
                                              WholeProgramFigures &figures) const {
  require(u"the shown panel"_s, [&] { return session.windows().isViewable(program.panel()); });
  const qint64 before = ProcessFigures::wakeUps(program.processId());
  QThread::sleep(static_cast<unsigned long>(m_effort.hiddenTime.count()));
  figures.wakeUpsWhileShown =
      static_cast<double>(ProcessFigures::wakeUps(program.processId()) - before) /
      static_cast<double>(m_effort.hiddenTime.count());
}

void PressToPicture::measureRest(qint64 processId, WholeProgramFigures &figures) const {
  figures.proportionalSetSizeKilobytes = ProcessFigures::proportionalSetSize(processId);
  figures.residentSetSizeKilobytes = ProcessFigures::residentSetSize(processId);
  const qint64 before = ProcessFigures::wakeUps(processId);
  QThread::sleep(static_cast<unsigned long>(m_effort.hiddenTime.count()));
  figures.wakeUpsWhileHidden = ProcessFigures::wakeUps(processId) - before;
}

}  // namespace lanternix
