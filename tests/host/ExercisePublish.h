#pragma once

namespace qutav::exercise {

/// Plays a publish run: the document's data "exercise.play" names how it ends ("make", "break",
/// "cancel", "sheet", "refuse", "end", "crash"; anything else does nothing at all). It writes the
/// transcript and the package as the real library and its tool would.
void PlayPublish(void* context, void* object, const char16_t* movieUri);

}  // namespace qutav::exercise
