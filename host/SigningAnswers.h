#pragma once

#include <filesystem>
#include <nlohmann/json.hpp>
#include <string>

namespace qutav::host {

/// Where the front end finds the password; the password itself is never written anywhere.
struct PasswordReference {
  enum class Kind { kEnvironment, kFile };
  Kind kind = Kind::kEnvironment;
  /// The variable's name or the file's absolute path.
  std::string place;
};

struct SigningMaterial {
  std::filesystem::path certificate;
  PasswordReference password;
  /// Empty where none was given.
  std::filesystem::path provisioningProfile;
};

/// What happens on the settings sheet when it has got the signing material.
enum class SheetUse {
  kPublish,   ///< the package is made from within the sheet
  kRemember,  ///< the sheet is left, and the commands that follow sign with it
};

/// A front end script that fills the settings sheet, uses and leaves it. All paths are absolute.
nlohmann::ordered_json SigningAnswers(const SigningMaterial& material, bool forIos, SheetUse use);

}  // namespace qutav::host
