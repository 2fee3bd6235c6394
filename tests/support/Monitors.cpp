#include "support/Monitors.h"

#include "support/ChildProcess.h"
#include "support/HarnessError.h"
#include "support/VirtualDisplay.h"
#include "support/WaitUntil.h"

namespace lanternix {

using namespace Qt::StringLiterals;

namespace {

QString sizeText(QSize size) {
  return u"%1x%2"_s.arg(size.width()).arg(size.height());
}

}  // namespace

QString Monitors::name(int output) {
  return u"DUMMY%1"_s.arg(output);
}

void Monitors::plugIn(int output, const QRect &area) {
  const QString monitor = name(output);
  // A mode of its own, named by the area: which beam draws it how fast is all the same.
  const QString mode = u"%1-%2x%3"_s.arg(monitor).arg(area.width()).arg(area.height());
  if (!m_modes.contains(mode)) {
    QStringList timing{u"--newmode"_s, mode, u"100"_s};
    for (const int length : {area.width(), area.height()}) {
      for (int porch = 0; porch < 4; ++porch) {
        timing.append(QString::number(length + porch));
      }
    }
    xrandr(timing);
    xrandr({u"--addmode"_s, monitor, mode});
    m_modes.append(mode);
  }
  const QStringList rank = output == 0 ? QStringList{u"--primary"_s} : QStringList();
  xrandr(QStringList{u"--fb"_s, sizeText(m_display.size()), u"--output"_s, monitor, u"--mode"_s,
                     mode, u"--pos"_s, sizeText(QSize(area.x(), area.y()))} +
         rank);
  xrandr({u"--query"_s});  // at which the server finds the output connected and tells so
}

void Monitors::unplug(int output) {
  xrandr({u"--fb"_s, sizeText(m_display.size()), u"--output"_s, name(output), u"--off"_s});
}

void Monitors::xrandr(const QStringList &arguments) {
  ChildProcess process(u"xrandr"_s, u"x11-xserver-utils"_s);
  process.start(QStringList{u"-display"_s, m_display.name()} + arguments,
                QProcessEnvironment::systemEnvironment());
  require(u"xrandr's end"_s, [&] { return process.exitCode().has_value(); });
  if (process.exitCode() != 0) {
    throw HarnessError(QString::fromUtf8(process.errors()));
  }
}

}  // namespace lanternix
