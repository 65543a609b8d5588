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

/// A front end script that fills the settings sheet, publishes and leaves it. All paths are
/// absolute.
nlohmann::ordered_json SigningAnswers(const SigningMaterial& material, bool forIos);

}  // namespace qutav::host
