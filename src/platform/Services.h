// The machine as the system sees it. Every floor reaches it through this one record, and a test
// puts services of its own in their place.
#pragma once

#include "platform/Clock.h"
#include "platform/Files.h"
#include "platform/Folders.h"
#include "platform/FrontEnd.h"
#include "platform/Images.h"
#include "platform/Language.h"
#include "platform/NetworkTables.h"
#include "platform/Processes.h"
#include "platform/Registry.h"
#include "platform/Threads.h"

namespace qutav {

struct Services {
  Files* files = nullptr;
  Processes* processes = nullptr;
  Clock* clock = nullptr;
  Registry* registry = nullptr;
  Folders* folders = nullptr;
  Language* language = nullptr;
  Threads* threads = nullptr;
  Images* images = nullptr;
  FrontEnd* frontEnd = nullptr;
  NetworkTables* networkTables = nullptr;
};

/// The services in force. The library fills the record when it is entered
/// (`InstallSystemServices`).
Services& TheServices();

/// Puts the services of this operating system in force, all but the front end. Defined once per
/// system.
void InstallSystemServices();

}  // namespace qutav
