// The services that the C++ standard library gives on every system.
#pragma once

namespace qutav {

class Clock;
class Threads;

Clock& StandardClock();
Threads& StandardThreads();

}  // namespace qutav
