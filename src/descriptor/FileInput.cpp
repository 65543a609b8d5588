#include "descriptor/FileInput.h"

#include <utility>
#include <xercesc/util/BinMemInputStream.hpp>

#include "platform/Services.h"

namespace qutav {

FileInput::FileInput(std::u16string path)
    : xercesc::InputSource(path.c_str()), path_(std::move(path)) {}

xercesc::BinInputStream* FileInput::makeStream() const {
  const auto bytes = TheServices().files->Read(path_);
  if (!bytes) return nullptr;
  return new xercesc::BinMemInputStream(reinterpret_cast<const XMLByte*>(bytes->data()),
                                        bytes->size(), xercesc::BinMemInputStream::BufOpt_Copy);
}

}  // namespace qutav
