#include "desktop/FileManagerService.h"

#include "support/HarnessError.h"

#include <QtDBus/QDBusError>

namespace lanternix {

using namespace Qt::StringLiterals;

namespace {

const QString connectionName = u"file-manager"_s;
const QString objectPath = u"/org/freedesktop/FileManager1"_s;

}  // namespace

FileManagerService::FileManagerService(const QString &busAddress)
    : m_connection(QDBusConnection::connectToBus(busAddress, connectionName)) {
  if (!m_connection.registerObject(objectPath, this, QDBusConnection::ExportAllSlots) ||
      !m_connection.registerService(u"org.freedesktop.FileManager1"_s)) {
    throw HarnessError(m_connection.lastError().message());
  }
}

FileManagerService::~FileManagerService() {
  // First: a call that comes in while the connection is being ended would be kept by the dead one.
  m_connection.unregisterObject(objectPath);
  QDBusConnection::disconnectFromBus(connectionName);
}

void FileManagerService::ShowItems(const QStringList &uris, const QString & /*startupId*/) {
  m_shownItems.append(uris);
}

}  // namespace lanternix
