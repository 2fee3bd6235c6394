#include "support/SessionBus.h"

#include "support/HarnessError.h"

#include <QtCore/QDir>
#include <QtCore/QFile>

namespace lanternix {

using namespace Qt::StringLiterals;

namespace {

constexpr auto configuration = R"(<!DOCTYPE busconfig PUBLIC
 "-//freedesktop//DTD D-Bus Bus Configuration 1.0//EN"
 "http://www.freedesktop.org/standards/dbus/1.0/busconfig.dtd">
<busconfig>
  <type>session</type>
  <listen>unix:path=%1/bus</listen>
  <servicedir>%1/services</servicedir>%2
  <auth>EXTERNAL</auth>
  <policy context="default">
    <allow send_destination="*" eavesdrop="true"/>
    <allow eavesdrop="true"/>
    <allow own="*"/>
  </policy>
</busconfig>
)"_L1;

}  // namespace

SessionBus::SessionBus(Services services, const QProcessEnvironment &environment)
    : m_daemon(u"dbus-daemon"_s, u"dbus-daemon"_s) {
  QDir().mkpath(serviceDirectory());
  QFile file(m_directory.filePath(u"bus.conf"_s));
  if (!file.open(QIODevice::WriteOnly)) {
    throw HarnessError(file.errorString());
  }
  const QLatin1String installed =
      services == Services::installed ? "<standard_session_servicedirs/>"_L1 : ""_L1;
  file.write(QString(configuration).arg(m_directory.path(), installed).toUtf8());
  file.close();
  m_daemon.start({u"--nofork"_s, u"--print-address"_s, u"--config-file="_s + file.fileName()},
                 environment);
  m_address = QString::fromLatin1(m_daemon.firstLine().trimmed());
}

}  // namespace lanternix
