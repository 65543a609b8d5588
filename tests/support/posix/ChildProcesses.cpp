#include "ChildProcesses.h"

#include <sys/types.h>
#include <sys/wait.h>
#include <unistd.h>

#include <iostream>

namespace qutav::test {
namespace {

[[noreturn]] void HangSilently() {
  while (true) pause();
}

[[noreturn]] void Hang() {
  std::cout << getpid() << std::endl;
  HangSilently();
}

void LeaveAChild() {
  const pid_t child = fork();
  if (child == 0) HangSilently();
  std::cout << child;
}

void LoseAGrandchild() {
  const pid_t child = fork();
  if (child != 0) {
    waitpid(child, nullptr, 0);
  } else if (fork() != 0) {
    _exit(0);
  }
}

}  // namespace

void PrepareStreams() {}

bool RunProcessOrder(std::string_view order) {
  if (order == "hang") {
    Hang();
  } else if (order == "family") {
    fork();
    Hang();
  } else if (order == "orphan") {
    LoseAGrandchild();
    Hang();
  } else if (order == "leave") {
    LeaveAChild();
  } else {
    return false;
  }
  return true;
}

}  // namespace qutav::test
