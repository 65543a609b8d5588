// The heads of the command lines that reach devices.
#pragma once

#include <string>

namespace qutav {

/// `"ROOT\lib\android\bin\adb.exe"`, quotes included.
std::u16string AdbProgram();

/// `"JAVA\bin\java.exe" -jar "ROOT\lib\KOB.jar" `.
std::u16string DeviceToolPrefix();

}  // namespace qutav
