#pragma once

#include <string_view>
#include <system_error>

namespace qutav::host {

/// An open file of the system, closed at the end of its life.
class FileDescriptor {
 public:
  explicit FileDescriptor(int number) : number_(number) {}
  ~FileDescriptor();
  FileDescriptor(const FileDescriptor&) = delete;
  FileDescriptor& operator=(const FileDescriptor&) = delete;

  bool IsOpen() const { return number_ >= 0; }
  int Number() const { return number_; }

  /// Writes all bytes, however often the system takes only a part of them.
  std::error_code Write(std::string_view bytes) const;

  /// Closes now and tells what the destructor would have to pass over.
  std::error_code Close();

 private:
  int number_;
};

/// The error that the last system call left.
std::error_code LastSystemError();

}  // namespace qutav::host
