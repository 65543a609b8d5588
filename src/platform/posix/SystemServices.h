// The live services of this system, each defined in the file of its name.
#pragma once

namespace qutav {

class Files;
class Folders;
class Images;
class NetworkTables;
class Processes;
class Registry;

Files& SystemFiles();
Folders& SystemFolders();
Images& SystemImages();
NetworkTables& SystemNetworkTables();
Processes& SystemProcesses();
Registry& SystemRegistry();

}  // namespace qutav
