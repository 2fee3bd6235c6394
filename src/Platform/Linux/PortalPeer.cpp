#include "Platform/Linux/PortalPeer.h"

namespace lanternix {

using namespace Qt::StringLiterals;

QDBusMessage PortalPeer::nameQuestion() {
  const QString bus = u"org.freedesktop.DBus"_s;
  auto question =
      QDBusMessage::createMethodCall(bus, u"/org/freedesktop/DBus"_s, bus, u"GetNameOwner"_s);
  question.setArguments({QString(serviceName)});
  return question;
}

QString PortalPeer::pathOf(const QString &kind, const QString &token) const {
  const QString sender = bus.baseService().mid(1).replace(u'.', u'_');  // without its colon
  return objectPath + u'/' + kind + u'/' + sender + u'/' + token;
}

QString PortalPeer::freshToken() {
  static int count = 0;
  return u"lanternix_%1"_s.arg(++count);
}

}  // namespace lanternix
