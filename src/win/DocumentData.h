// Settings keys kept in the host's authoring document, and the document's operations that a publish
// needs. None reports a failure; without a host that evaluates, nothing happens.
#pragma once

#include <string>

#include "win/HostEnvironment.h"

namespace qutav {

/// Document to map. A key that the document does not hold, or holds as "0", leaves the map alone;
/// so does an empty key.
void ReadDocumentKey(const HostCallContext& call, const std::u16string& key);

/// Map to document; a value without text removes the key there. The value is not escaped.
void WriteDocumentKey(const HostCallContext& call, const std::u16string& key);

void RemoveDocumentKey(const HostCallContext& call, const std::u16string& key);

/// All document keys, and the included items up to their count, into the map.
void LoadDocumentSettings(const HostCallContext& call);

/// The same from the map into the document, without the SDK's path, which only the document fills.
void SaveDocumentSettings(const HostCallContext& call);

/// The script that reads a key straight from the document.
std::u16string DocumentDataScript(const std::u16string& key);

/// Exports the movie through the host; the script's integer, -1 when the host gave none.
std::int32_t ExportMovieForPublish();

/// The document's debug flag: 1 or 0.
int GetDebugForMovie();
void SetDebugForMovie(bool flag);

}  // namespace qutav
