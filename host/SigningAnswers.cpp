#include "host/SigningAnswers.h"

#include "host/NativePath.h"

namespace qutav::host {
namespace {

using Json = nlohmann::ordered_json;

struct SigningKeys {
  const char* certificate;
  const char* password;
  const char* remember;
};

constexpr SigningKeys kAndroidKeys = {"com.tav.moresh.certpath", "com.tav.moresh.certpwd",
                                      "com.tav.moresh.rempwd"};
constexpr SigningKeys kIosKeys = {"com.tav.moresh.ipacertpath", "com.tav.moresh.ipacertpwd",
                                  "com.tav.moresh.iparempwd"};
constexpr const char* kProvisioningKey = "com.tav.moresh.ipaprovision";

Json ReferenceTo(const PasswordReference& password) {
  const bool inFile = password.kind == PasswordReference::Kind::kFile;
  return Json{{inFile ? "file" : "environment", password.place}};
}

}  // namespace

Json SigningAnswers(const SigningMaterial& material, bool forIos, SheetUse use) {
  const SigningKeys& keys = forIos ? kIosKeys : kAndroidKeys;
  Json settings = {{keys.certificate, ToSettingsForm(material.certificate)},
                   {keys.password, ReferenceTo(material.password)}};
  if (forIos && !material.provisioningProfile.empty()) {
    settings[kProvisioningKey] = ToSettingsForm(material.provisioningProfile);
  }
  Json press = {"Publish", "Cancel"};
  if (use == SheetUse::kRemember) {
    // Remembered within the process alone; leaving by OK would store it with the document's rest.
    settings[keys.remember] = "true";
    press = Json::array({"Cancel"});
  }
  Json sheet = {{"to", "sheet"}, {"settings", settings}, {"press", press}};
  return Json{{"answers", Json::array({sheet})}};
}

}  // namespace qutav::host
