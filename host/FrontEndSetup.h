#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "host/CommandLine.h"
#include "host/SigningAnswers.h"
#include "host/TemporaryFile.h"

namespace qutav::host {

/// The environment in which the library's front end finds its answers and its transcript. It is
/// made before the library is entered and taken back, with all temporary files, at the end.
class FrontEndSetup {
 public:
  explicit FrontEndSetup(const CallOptions& options);

  /// Gives the front end these answers.
  FrontEndSetup(const CallOptions& options, const nlohmann::ordered_json& answers);

  /// Asks for the password on the terminal when a certificate comes without a place for it;
  /// throws Refusal when there is no answer.
  FrontEndSetup(const PublishOptions& options, bool forIos, SheetUse use);
  ~FrontEndSetup();
  FrontEndSetup(const FrontEndSetup&) = delete;
  FrontEndSetup& operator=(const FrontEndSetup&) = delete;

  const std::filesystem::path& Transcript() const { return transcript_; }

 private:
  void Set(const std::string& name, const std::string& value);
  void UseAnswers(const nlohmann::ordered_json& answers);
  void SetUpSigning(const PublishOptions& options, bool forIos, SheetUse use);
  PasswordReference PasswordOf(const PublishOptions& options);

  std::optional<TemporaryFile> ownTranscript_;
  std::optional<TemporaryFile> ownScript_;
  std::filesystem::path transcript_;
  std::vector<std::string> variables_;
};

}  // namespace qutav::host
