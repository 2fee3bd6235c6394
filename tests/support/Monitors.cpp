#include "support/Monitors.h"

#include "support/ChildProcess.h"
#include "support/HarnessError.h"
#include "support/VirtualDisplay.h"
#include "support/WaitUntil.h"

#include <utility>

namespace lanternix {

using namespace Qt::StringLiterals;

namespace {

const QString output = u"screen"_s;  // the server's only one

QString sizeText(QSize size) {
  return u"%1x%2"_s.arg(size.width()).arg(size.height());
}

}  // namespace

void Monitors::plugIn(const QString &name, const QRect &area) {
  constexpr double millimetresPerPixel = 25.4 / 96;
  const QString place = u"%1/%2x%3/%4+%5+%6"_s.arg(area.width())
                            .arg(qRound(area.width() * millimetresPerPixel))
                            .arg(area.height())
                            .arg(qRound(area.height() * millimetresPerPixel))
                            .arg(area.x())
                            .arg(area.y());
  const bool isFirst = !std::exchange(m_hasFirst, true);
  xrandr({u"--setmonitor"_s, isFirst ? u"*"_s + name : name, place, isFirst ? output : u"none"_s});
  announce();
}

void Monitors::unplug(const QString &name) {
  xrandr({u"--delmonitor"_s, name});
  announce();
}

/// The server does not tell of a changed division by itself. A real monitor comes and goes with the
/// circuit that feeds it, and that is what programs listen to.
void Monitors::announce() {
  const QString size = sizeText(m_display.size());
  xrandr({u"--fb"_s, size, u"--output"_s, output, u"--off"_s});
  xrandr({u"--fb"_s, size, u"--output"_s, output, u"--mode"_s, size});
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
