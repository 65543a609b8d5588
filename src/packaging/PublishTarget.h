#pragma once

namespace qutav {

/// What a publish makes.
enum PublishTarget : int {
  PublishTargetApk = 1,  ///< Android package
  PublishTargetIpa = 2,  ///< iOS package
  PublishTargetExe = 3,  ///< desktop native installer
};

}  // namespace qutav
