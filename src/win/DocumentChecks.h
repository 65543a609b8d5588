// What all commands ask of the document before they work on it.
#pragma once

#include <string>

#include "win/HostEnvironment.h"

namespace qutav {

/// Sets the target settings from the document's player target.
void DetectPlayerTarget(const HostCallContext& call);

/// Sets them from the output type that the host stored in the document.
void DetectOutputType(const HostCallContext& call);

/// Whether the document has never been through this extension.
bool DocumentHasNoStoredFolder(const HostCallContext& call);

/// Whether the document lies elsewhere than at the time of its last store.
bool DocumentWasMoved(const HostCallContext& call);

/// Brings the descriptor of a document that was saved under another name to its new place, or
/// generates one where that fails.
void RelocateDescriptor(const HostCallContext& call, const std::u16string& folder,
                        const std::u16string& baseName);

/// Relocates the descriptor of a document that was moved beside the movie and remembers the
/// document's new path; false, and nothing done, when it was not moved.
bool FollowMovedDocument(const HostCallContext& call);

/// Whether the document has a descriptor: one that is there, whatever became of the document, or
/// else the one that followed it. False where one has to be generated.
bool HasOrRelocatesDescriptor(const HostCallContext& call);

/// Opens the descriptor, brings its namespace to that of the SDK, writing it back when it differs,
/// and closes it. False, and a message shown, when it cannot be parsed.
bool OpenDescriptor();

/// Brings the `extensions` of the descriptor in line with the document's native extensions; the
/// file is written always.
void UpdateExtensionIds();

}  // namespace qutav
