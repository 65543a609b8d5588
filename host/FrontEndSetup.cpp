#include "host/FrontEndSetup.h"

#include "host/ProcessState.h"
#include "host/Refusal.h"
#include "host/Terminal.h"

namespace qutav::host {
namespace {

constexpr const char* kScriptVariable = "QUTAV_SCRIPT";
constexpr const char* kTranscriptVariable = "QUTAV_TRANSCRIPT";
constexpr const char* kPasswordVariable = "QUTAV_CERTIFICATE_PASSWORD";

}  // namespace

FrontEndSetup::FrontEndSetup(const CallOptions& options) {
  transcript_ = options.transcript;
  if (transcript_.empty()) transcript_ = ownTranscript_.emplace("").Path();
  Set(kTranscriptVariable, transcript_.string());
  if (!options.script.empty()) Set(kScriptVariable, options.script.string());
}

FrontEndSetup::FrontEndSetup(const CallOptions& options, const nlohmann::ordered_json& answers)
    : FrontEndSetup(options) {
  UseAnswers(answers);
}

FrontEndSetup::FrontEndSetup(const PublishOptions& options, bool forIos, SheetUse use)
    : FrontEndSetup(options) {
  if (!options.certificate.empty()) SetUpSigning(options, forIos, use);
}

FrontEndSetup::~FrontEndSetup() {
  for (const std::string& name : variables_) ClearEnvironment(name);
}

void FrontEndSetup::Set(const std::string& name, const std::string& value) {
  SetEnvironment(name, value);
  variables_.push_back(name);
}

void FrontEndSetup::SetUpSigning(const PublishOptions& options, bool forIos, SheetUse use) {
  const SigningMaterial material = {options.certificate, PasswordOf(options),
                                    options.provisioningProfile};
  UseAnswers(SigningAnswers(material, forIos, use));
}

void FrontEndSetup::UseAnswers(const nlohmann::ordered_json& answers) {
  ownScript_.emplace(answers.dump(2) + "\n");
  Set(kScriptVariable, ownScript_->Path().string());
}

PasswordReference FrontEndSetup::PasswordOf(const PublishOptions& options) {
  using Kind = PasswordReference::Kind;
  if (!options.passwordVariable.empty()) return {Kind::kEnvironment, options.passwordVariable};
  if (!options.passwordFile.empty()) return {Kind::kFile, options.passwordFile.string()};
  const auto password = ReadPassword("Password of " + options.certificate.string() + ": ");
  if (!password || password->empty()) throw Refusal("no password was given");
  Set(kPasswordVariable, *password);
  return {Kind::kEnvironment, kPasswordVariable};
}

}  // namespace qutav::host
