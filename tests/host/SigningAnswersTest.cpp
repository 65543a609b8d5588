#include <gtest/gtest.h>

#include "host/SigningAnswers.h"

namespace qutav::host {
namespace {

using Json = nlohmann::ordered_json;

TEST(SigningAnswersTest, AndroidSheetGetsCertificateAndReference) {
  SigningMaterial material;
  material.certificate = "/keys/my key.p12";
  material.password = {PasswordReference::Kind::kEnvironment, "MY_PASSWORD"};
  EXPECT_EQ(SigningAnswers(material, false, SheetUse::kPublish), Json::parse(R"({"answers": [{
      "to": "sheet", "page": "Deployment",
      "set": {"Certificate:": "/keys/my key.p12", "Password:": {"environment": "MY_PASSWORD"}},
      "press": ["Publish", "Cancel"]}]})"));
}

TEST(SigningAnswersTest, IosSheetGetsTheProfileAsWell) {
  SigningMaterial material;
  material.certificate = "/keys/dist.p12";
  material.password = {PasswordReference::Kind::kFile, "/run/password"};
  material.provisioningProfile = "/keys/store.mobileprovision";
  EXPECT_EQ(SigningAnswers(material, true, SheetUse::kPublish), Json::parse(R"({"answers": [{
      "to": "sheet", "page": "Deployment",
      "set": {"Certificate:": "/keys/dist.p12", "Password:": {"file": "/run/password"},
              "Provisioning profile:": "/keys/store.mobileprovision"},
      "press": ["Publish", "Cancel"]}]})"));
}

TEST(SigningAnswersTest, MaterialForLaterCommandsIsRememberedAndTheSheetLeft) {
  SigningMaterial material;
  material.certificate = "/keys/my.p12";
  material.password = {PasswordReference::Kind::kEnvironment, "MY_PASSWORD"};
  EXPECT_EQ(SigningAnswers(material, false, SheetUse::kRemember), Json::parse(R"({"answers": [{
      "to": "sheet", "page": "Deployment",
      "set": {"Certificate:": "/keys/my.p12", "Password:": {"environment": "MY_PASSWORD"},
              "Remember password for this session": true},
      "press": ["OK", "Cancel"]}]})"));
}

TEST(SigningAnswersTest, ProfileThatWasNotGivenLeavesTheDocumentsOwn) {
  SigningMaterial material;
  material.certificate = "/keys/dist.p12";
  const Json fields = SigningAnswers(material, true, SheetUse::kPublish)["answers"][0]["set"];
  EXPECT_FALSE(fields.contains("Provisioning profile:"));
}

}  // namespace
}  // namespace qutav::host
