// Which format namespace the SDK in use asks for.
#pragma once

#include <string>

namespace qutav {

/// The constant beginning of every descriptor namespace; the format, such as "2.0", follows.
inline constexpr char16_t DescriptorNamespaceBase[] = u"http://ns.zenvoka.example/tav/application/";

/// Where the SDK's sample descriptor lies.
std::u16string SampleDescriptorPath();

/// The sample's namespace in the local code page: 0, or -1 and the buffer untouched when the sample
/// cannot be read.
int ReadSampleNamespace(std::string& buffer);

}  // namespace qutav
