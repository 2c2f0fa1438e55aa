#pragma once
// The relay lives with the reporter's port now; this name stays for the
// dialogs that include it from here.

#include "toolkit/ReporterRelay.h"
