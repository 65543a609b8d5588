#include "host/SigningAnswers.h"

#include "host/NativePath.h"

namespace qutav::host {
namespace {

using Json = nlohmann::ordered_json;

Json ReferenceTo(const PasswordReference& password) {
  const bool inFile = password.kind == PasswordReference::Kind::kFile;
  return Json{{inFile ? "file" : "environment", password.place}};
}

}  // namespace

Json SigningAnswers(const SigningMaterial& material, bool forIos, SheetUse use) {
  Json fields = {{"Certificate:", ToSettingsForm(material.certificate)},
                 {"Password:", ReferenceTo(material.password)}};
  if (forIos && !material.provisioningProfile.empty()) {
    fields["Provisioning profile:"] = ToSettingsForm(material.provisioningProfile);
  }
  Json press = {"Publish", "Cancel"};
  if (use == SheetUse::kRemember) {
    fields["Remember password for this session"] = true;
    press = {"OK", "Cancel"};  // the second where OK finds something wrong
  }
  Json sheet = {{"to", "sheet"}, {"page", "Deployment"}, {"set", fields}, {"press", press}};
  return Json{{"answers", Json::array({sheet})}};
}

}  // namespace qutav::host
