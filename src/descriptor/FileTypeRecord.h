#pragma once

#include <string>

namespace qutav {

/// One `fileType` of a descriptor.
struct FileTypeRecord {
  std::string name;       ///< local code page
  std::string extension;  ///< local code page
  std::u16string description;
  std::u16string contentType;
  std::u16string image128x128;
  std::u16string image48x48;
  std::u16string image32x32;
  std::u16string image16x16;
  bool live = true;        ///< false once the user has deleted the type
  std::string storedName;  ///< the name under which a list of types holds the record
};

inline void ResetFileTypeRecord(FileTypeRecord& record) { record = FileTypeRecord(); }

}  // namespace qutav
