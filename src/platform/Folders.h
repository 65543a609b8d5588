// Where the machine keeps things. All results are Windows-form text.
#pragma once

#include <string>

namespace qutav {

class Folders {
 public:
  virtual ~Folders() = default;
  /// The full file name of the running program (`GetModuleFileNameW`).
  virtual std::u16string HostExecutable() = 0;
  /// The temporary folder with a trailing backslash (`GetTempPathW`).
  virtual std::u16string Temporary() = 0;
  /// The common program files folder (`SHGetFolderPathW`, CSIDL_PROGRAM_FILES_COMMON); empty when
  /// the system has none. On POSIX the environment variable `CommonProgramFiles`, by default /opt.
  virtual std::u16string CommonProgramFiles() = 0;
  /// The operating system's major version number (`RtlGetVersion`); 0 where the term has no
  /// meaning.
  virtual unsigned MajorVersion() = 0;
};

}  // namespace qutav
