#include "System.h"

#include <unistd.h>

namespace launcher {

unsigned long ProcessId() { return static_cast<unsigned long>(getpid()); }

}  // namespace launcher

int main(int count, char** arguments) { return launcher::Run({arguments + 1, arguments + count}); }
