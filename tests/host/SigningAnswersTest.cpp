#include <gtest/gtest.h>

#include "host/SigningAnswers.h"

namespace qutav::host {
namespace {

using Json = nlohmann::ordered_json;
using Kind = PasswordReference::Kind;

TEST(SigningAnswersTest, AndroidSheetGetsCertificateAndReference) {
  SigningMaterial material;
  material.certificate = "/keys/my key.p12";
  material.password = {Kind::kEnvironment, "MY_PASSWORD"};
  EXPECT_EQ(SigningAnswers(material, false, SheetUse::kPublish), Json::parse(R"({"answers": [{
      "to": "sheet",
      "settings": {"com.tav.moresh.certpath": "/keys/my key.p12",
                   "com.tav.moresh.certpwd": {"environment": "MY_PASSWORD"}},
      "press": ["Publish", "Cancel"]}]})"));
}

TEST(SigningAnswersTest, IosSheetGetsTheProfileAsWell) {
  SigningMaterial material;
  material.certificate = "/keys/dist.p12";
  material.password = {Kind::kFile, "/run/password"};
  material.provisioningProfile = "/keys/store.mobileprovision";
  EXPECT_EQ(SigningAnswers(material, true, SheetUse::kPublish), Json::parse(R"({"answers": [{
      "to": "sheet",
      "settings": {"com.tav.moresh.ipacertpath": "/keys/dist.p12",
                   "com.tav.moresh.ipacertpwd": {"file": "/run/password"},
                   "com.tav.moresh.ipaprovision": "/keys/store.mobileprovision"},
      "press": ["Publish", "Cancel"]}]})"));
}

TEST(SigningAnswersTest, MaterialForLaterCommandsIsRememberedAndTheSheetLeft) {
  SigningMaterial material;
  material.certificate = "/keys/my.p12";
  material.password = {Kind::kEnvironment, "MY_PASSWORD"};
  EXPECT_EQ(SigningAnswers(material, false, SheetUse::kRemember), Json::parse(R"({"answers": [{
      "to": "sheet",
      "settings": {"com.tav.moresh.certpath": "/keys/my.p12",
                   "com.tav.moresh.certpwd": {"environment": "MY_PASSWORD"},
                   "com.tav.moresh.rempwd": "true"},
      "press": ["Cancel"]}]})"));
}

TEST(SigningAnswersTest, ProfileThatWasNotGivenLeavesTheDocumentsOwn) {
  SigningMaterial material;
  material.certificate = "/keys/dist.p12";
  const Json settings =
      SigningAnswers(material, true, SheetUse::kPublish)["answers"][0]["settings"];
  EXPECT_FALSE(settings.contains("com.tav.moresh.ipaprovision"));
}

}  // namespace
}  // namespace qutav::host
