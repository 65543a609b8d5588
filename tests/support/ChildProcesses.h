// What the child of the tests does with processes; each system does it in its own way.
#pragma once

#include <string_view>

namespace qutav::test {

/// Lets standard output take bytes as they are.
void PrepareStreams();

/// Carries out one of these orders; false when it is none of them.
///   hang    tells its process id and runs until it is killed
///   family  starts a child that hangs, hangs itself, and both tell their process ids
///   orphan  hangs with a grandchild that hangs and has lost its parent; both tell their process
///           ids (POSIX only: elsewhere nobody finds such a grandchild)
///   leave   starts a child that hangs in silence, tells its process id and ends
bool RunProcessOrder(std::string_view order);

}  // namespace qutav::test
