#pragma once

#include <string>
#include <xercesc/sax/InputSource.hpp>

namespace qutav {

/// A file as Xerces reads it. It stands in for `LocalFileInputSource`, which would look at a path
/// with the library's own idea of the system's names.
class FileInput final : public xercesc::InputSource {
 public:
  explicit FileInput(std::u16string path);
  /// Null when the file cannot be read; the parser then reports it.
  xercesc::BinInputStream* makeStream() const override;

 private:
  std::u16string path_;
};

}  // namespace qutav
