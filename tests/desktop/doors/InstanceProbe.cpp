#include "Platform/ActivationToken.h"
#include "Platform/Platform.h"
#include "Platform/SingleInstance.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QMetaEnum>
#include <QtCore/QTextStream>

// A start of the program without anything but its claim to be the only one. Says "first" and then
// everything that is asked of it, a line each; or says "second" and ends.
int main(int argc, char **argv) {
  using namespace lanternix;
  const ActivationToken token = ActivationToken::takeFromEnvironment();
  const QCoreApplication application(argc, argv);
  QTextStream output(stdout);
  const auto instance = makeSingleInstance();
  QObject::connect(
      instance.get(), &SingleInstance::requested, &application,
      [&output](SingleInstance::Request request, const ActivationToken &its) {
        const char *name =
            QMetaEnum::fromType<SingleInstance::Request>().valueToKey(static_cast<int>(request));
        output << name << " token=" << its.token << " id=" << its.startupId << Qt::endl;
      });
  const bool first = instance->claim(token);
  output << (first ? "first" : "second") << Qt::endl;
  return first ? QCoreApplication::exec() : 0;
}
