#include "desktop/FileManagerService.h"

#include "support/HarnessError.h"

#include <QtDBus/QDBusError>

namespace lanternix {

using namespace Qt::StringLiterals;

namespace {

const QString connectionName = u"file-manager"_s;

}  // namespace

FileManagerService::FileManagerService(const QString &busAddress)
    : m_connection(QDBusConnection::connectToBus(busAddress, connectionName)) {
  if (!m_connection.registerObject(u"/org/freedesktop/FileManager1"_s, this,
                                   QDBusConnection::ExportAllSlots) ||
      !m_connection.registerService(u"org.freedesktop.FileManager1"_s)) {
    throw HarnessError(m_connection.lastError().message());
  }
}

FileManagerService::~FileManagerService() {
  QDBusConnection::disconnectFromBus(connectionName);
}

void FileManagerService::ShowItems(const QStringList &uris, const QString & /*startupId*/) {
  m_shownItems.append(uris);
}

}  // namespace lanternix
