#include "Platform/SingleInstance.h"  // compiled for its meta object
