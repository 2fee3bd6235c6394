#include "support/VirtualDisplay.h"

#include "support/ProgramEnvironment.h"

#include <QtCore/QFile>

namespace lanternix {

using namespace Qt::StringLiterals;

namespace {

using Outputs = VirtualDisplay::Outputs;

/// Debian's name on the search path may be a guard that lets only people at the console pass.
QString serverProgram(Outputs outputs) {
  const QString unguarded = u"/usr/lib/xorg/Xorg"_s;
  if (outputs == Outputs::one) {
    return u"Xvfb"_s;
  }
  return QFile::exists(unguarded) ? unguarded : u"Xorg"_s;
}

}  // namespace

VirtualDisplay::VirtualDisplay(QSize size, Outputs outputs)
    : m_size(size),
      m_server(serverProgram(outputs),
               outputs == Outputs::one ? u"xvfb"_s : u"xserver-xorg-video-dummy"_s) {
  const QStringList screen =
      outputs == Outputs::one
          ? QStringList{u"-screen"_s, u"0"_s, u"%1x%2x24"_s.arg(size.width()).arg(size.height())}
          : prepareSeveralOutputs();
  // The server writes the number that it found to standard output, as soon as it accepts clients.
  // Without -noreset it would start anew, keyboard and all, whenever its last client left.
  m_server.start(QStringList{u"-displayfd"_s, u"1"_s, u"-noreset"_s, u"-nolisten"_s, u"tcp"_s,
                             u"-dpi"_s, u"96"_s} +
                     screen,
                 QProcessEnvironment::systemEnvironment());
  m_name = u":"_s + QString::fromLatin1(m_server.firstLine().trimmed());
}

/// It must touch neither the machine's screen nor its keyboard and mouse.
QStringList VirtualDisplay::prepareSeveralOutputs() {
  const QString configuration =
      uR"(Section "ServerFlags"
  Option "AutoAddDevices" "false"
  Option "AutoAddGPU" "false"
  Option "AutoBindGPU" "false"
EndSection
Section "Device"
  Identifier "memory"
  Driver "dummy"
  VideoRam 65536
EndSection
Section "Monitor"
  Identifier "any"
  HorizSync 1-1000
  VertRefresh 1-1000
EndSection
Section "Screen"
  Identifier "all"
  Device "memory"
  Monitor "any"
  DefaultDepth 24
  SubSection "Display"
    Virtual %1 %2
  EndSubSection
EndSection
)"_s.arg(m_size.width())
          .arg(m_size.height());
  const QString file = m_directory.filePath(u"xorg.conf"_s);
  ProgramEnvironment::write(file, configuration.toUtf8());
  return {u"-config"_s,     file,          u"-logfile"_s, m_directory.filePath(u"xorg.log"_s),
          u"-novtswitch"_s, u"-sharevts"_s};
}

}  // namespace lanternix
