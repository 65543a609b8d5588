// The system's header, without those of its macros that take names of ours.
#pragma once

#include <windows.h>

#undef LoadString
