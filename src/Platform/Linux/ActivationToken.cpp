#include "Platform/ActivationToken.h"

namespace lanternix {
namespace {

QString taken(const char *variable) {
  QString value = qEnvironmentVariable(variable);
  qunsetenv(variable);
  return value;
}

}  // namespace

ActivationToken ActivationToken::takeFromEnvironment() {
  return {.token = taken("XDG_ACTIVATION_TOKEN"), .startupId = taken("DESKTOP_STARTUP_ID")};
}

}  // namespace lanternix
