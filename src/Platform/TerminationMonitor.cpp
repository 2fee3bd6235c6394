// A source of its own, so that the build finds the header to make its signals from.
#include "Platform/TerminationMonitor.h"
