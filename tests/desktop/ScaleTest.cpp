#include "desktop/DesktopTest.h"
