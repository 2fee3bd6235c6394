#include "Platform/TerminationMonitor.h"
