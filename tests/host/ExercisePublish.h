#pragma once

namespace qutav::exercise {

/// Plays a publish run: the document's data "exercise.play" names how it ends ("make", "break",
/// "cancel", "sheet", "refuse", "end", "crash"; anything else does nothing at all). It writes the
/// transcript and the package as the real library and its tool would.
void PlayPublish(void* context, void* object, const char16_t* movieUri);

/// Plays a run on the selected device, whose serial is appended to "devices.txt". The package is
/// made; on the device that the data "exercise.fails" names it is not installed, on the one that
/// "exercise.cancels" names the user stops it.
void PlayDeviceRun(void* context, void* object);

/// The settings sheet, opened by the user.
void PlaySettings();

}  // namespace qutav::exercise
