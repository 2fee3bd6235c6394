#include "support/VirtualDisplay.h"

namespace lanternix {

using namespace Qt::StringLiterals;

VirtualDisplay::VirtualDisplay(QSize size) : m_size(size), m_server(u"Xvfb"_s, u"xvfb"_s) {
  const QString screen = u"%1x%2x24"_s.arg(size.width()).arg(size.height());
  // The server writes the number that it found to standard output, as soon as it accepts clients.
  // Without -noreset it would start anew, keyboard and all, whenever its last client left.
  m_server.start({u"-displayfd"_s, u"1"_s, u"-screen"_s, u"0"_s, screen, u"-noreset"_s,
                  u"-nolisten"_s, u"tcp"_s, u"-dpi"_s, u"96"_s},
                 QProcessEnvironment::systemEnvironment());
  m_name = u":"_s + QString::fromLatin1(m_server.firstLine().trimmed());
}

}  // namespace lanternix
