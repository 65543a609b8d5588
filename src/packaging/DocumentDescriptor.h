// Bringing the document's descriptor into and out of `CurrentDescriptor`.
#pragma once

#include <string>

namespace qutav {

/// Where the document's descriptor lies: beside the movie, backslashes.
std::u16string DocumentDescriptorPath();

/// Makes a DOM of the document's descriptor ready in `CurrentDescriptor`; a missing or early one is
/// generated first. Without `force` a DOM that was loaded from that path stays, unsaved edits and
/// all. Returns the `LoadResult`; any but 0 has been shown.
int LoadDocumentDescriptor(bool force);

/// Writes `CurrentDescriptor` to the document's descriptor; the result of `Save`.
int SaveDocumentDescriptor();

/// Gives the document's descriptor, copied from under another name, the new movie's name. False,
/// and a message shown, when it cannot be loaded.
bool RetargetDescriptor();

}  // namespace qutav
