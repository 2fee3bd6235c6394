#pragma once

#include "PictureWatch.h"
#include "Series.h"
#include "support/DesktopSession.h"

#include <QtCore/QByteArray>

namespace lanternix {

class Program;

/// How often each figure is measured.
struct Effort {
  int starts = 15;
  int presses = 60;
  int wheelSteps = 40;
  int foldings = 20;
  int arrangements = 20;
  std::chrono::seconds hiddenTime{20};
};

/// What a person waits for, measured from outside.
struct WholeProgramFigures {
  Series startToHeldShortcut;
  Series startToShownPanel;
  Series pressToFirstPicture;
  Series pressToSettled;
  Series letterToSettled;
  Series escapeToUnmapped;
  Series wheelStepToSettled;
  /// At the first opening, when the window is made.
  Series openingToSettledSettings;
  Series selectionToSettled;
  /// Of an item among those of its group, until the new order is on the disk and to be seen.
  Series dropToSettled;
  Series longestGapWhileUnfolding;
  Series processorTimePerFrame;
  qint64 proportionalSetSizeKilobytes = 0;
  qint64 residentSetSizeKilobytes = 0;
  qint64 wakeUpsWhileHidden = 0;
  /// In each second.
  double wakeUpsWhileShown = 0;
};

/// Measures the built program over a data file, or a bare window as the floor under its figures, on
/// a display, a window manager and a bus of its own.
class PressToPicture {
 public:
  explicit PressToPicture(const Effort &effort) : m_effort(effort) {}

  WholeProgramFigures measureProgram(const QByteArray &dataFile);
  /// Only the first opening of the settings.
  WholeProgramFigures measureSettings(const QByteArray &dataFile);
  /// Only what is done with the mouse in the settings' Groups tab. Needs two large groups.
  WholeProgramFigures measureArranging(const QByteArray &dataFile);
  WholeProgramFigures measureBareClient();
  /// Only what concerns folding. The first group of \p dataFile is measured, folded at the start.
  WholeProgramFigures measureFolding(const QByteArray &dataFile);

 private:
  /// Adds \p duration. Throws HarnessError, saying that there was no \p what, when there is none.
  static void addIfAny(Series &series, const std::optional<PictureWatch::Duration> &duration,
                       const QString &what);

  void measureStarts(DesktopSession &session, WholeProgramFigures &figures) const;
  void measurePresses(DesktopSession &session, xcb_window_t window,
                      WholeProgramFigures &figures) const;
  void measureWheel(DesktopSession &session, xcb_window_t window,
                    WholeProgramFigures &figures) const;
  void measureWakeUpsWhileShown(DesktopSession &session, const Program &program,
                                WholeProgramFigures &figures) const;
  void measureRest(qint64 processId, WholeProgramFigures &figures) const;

  Effort m_effort;
};

}  // namespace lanternix
