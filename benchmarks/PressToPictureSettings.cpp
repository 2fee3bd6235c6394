#include "PressToPicture.h"
#include "support/Program.h"
#include "support/WaitUntil.h"

#include <QtCore/QFileInfo>

#include <X11/keysym.h>

namespace lanternix {

using namespace Qt::StringLiterals;

namespace {

using Clock = std::chrono::steady_clock;

// Places in the settings window, from its corner.
constexpr QPoint firstGroup{60, 97};
constexpr int groupHeight = 42;
constexpr QPoint firstItem{400, 159};
constexpr int itemHeight = 43;

/// The settings' window, in front.
xcb_window_t openSettings(DesktopSession &session) {
  session.input().tap(XK_comma, {XK_Control_L});
  std::optional<xcb_window_t> window;
  require(u"the settings"_s, [&] {
    window = session.windows().find(u"lanternix"_s, u"Lanternix Settings"_s);
    return window.has_value() && session.windows().hasFocus(*window);
  });
  return *window;
}

/// Drags from \p from to \p to and holds there, when all of it has been drawn.
void dragAndHold(InputDriver &input, PictureWatch &watch, QPoint from, QPoint to) {
  constexpr QPoint beyond(0, 15);
  input.moveTo(from);
  input.pressButton();
  // The first two begin the drag and show its target, the others lead to the place: a target
  // answers only to where the pointer was at the question before.
  for (const QPoint place : {from + beyond, from + beyond + QPoint(1, 0), to, to + QPoint(1, 0)}) {
    input.moveTo(place);
    watch.waitForQuiet();
  }
}

}  // namespace

WholeProgramFigures PressToPicture::measureSettings(const QByteArray &dataFile) {
  DesktopSession session;
  ProgramEnvironment::write(session.home().dataFile(), dataFile);
  WholeProgramFigures figures;
  for (int start = 0; start < m_effort.starts; ++start) {
    Program program(session);
    program.waitForPanel();
    program.settle();
    const Clock::time_point begin = Clock::now();
    session.input().tap(XK_comma, {XK_Control_L});
    // There is no window to watch before it is made, so its picture is looked at over and over.
    QImage picture;
    Clock::time_point changed = begin;
    constexpr std::chrono::milliseconds silence{150};
    require(u"the settings"_s, [&] {
      const auto window = session.windows().find(u"lanternix"_s, u"Lanternix Settings"_s);
      const QImage now = window ? session.windows().grab(*window) : QImage();
      if (now != picture) {
        picture = now;
        changed = Clock::now();
      }
      return WindowProbe::hasContent(picture) && Clock::now() - changed > silence;
    });
    figures.openingToSettledSettings.add(changed - begin);
  }
  return figures;
}

WholeProgramFigures PressToPicture::measureArranging(const QByteArray &dataFile) {
  DesktopSession session;
  ProgramEnvironment::write(session.home().dataFile(), dataFile);
  Program program(session);
  program.waitForPanel();
  const xcb_window_t settings = openSettings(session);
  PictureWatch watch(session.displayName(), settings);
  watch.waitForQuiet();
  const QPoint corner = session.windows().geometry(settings).topLeft();

  WholeProgramFigures figures;
  // The first look at a group finds nothing warm, so it does not count.
  for (int turn = 0; turn <= m_effort.arrangements; ++turn) {
    const QPoint group = corner + firstGroup + QPoint(0, turn % 2 * groupHeight);
    const auto times = watch.timesAfter([&] { session.input().click(group); });
    if (turn > 0) {
      addIfAny(figures.selectionToSettled, times.settled, u"change after the selection"_s);
    }
  }
  for (int turn = 0; turn < m_effort.arrangements; ++turn) {
    dragAndHold(session.input(), watch, corner + firstItem,
                corner + firstItem + QPoint(0, 3 * itemHeight + itemHeight / 3));
    const auto savedAt = [&] { return QFileInfo(session.home().dataFile()).lastModified(); };
    const auto before = savedAt();
    const auto times = watch.timesAfter([&] {
      session.input().releaseButton();
      require(u"the save"_s, [&] { return savedAt() != before; });
    });
    addIfAny(figures.dropToSettled, times.settled, u"change after the drop"_s);
  }
  return figures;
}

}  // namespace lanternix
