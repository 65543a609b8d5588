#include "host/PublishRecord.h"

#include <string>

namespace qutav::host {
namespace {

bool Has(const nlohmann::json& event, const char* member, const char* text) {
  const auto found = event.find(member);
  return found != event.end() && found->is_string() && found->get<std::string>() == text;
}

bool IsInformation(const nlohmann::json& event) {
  return Has(event, "event", "message") && Has(event, "icon", "information");
}

}  // namespace

void PublishRecord::Take(const nlohmann::json& event) {
  empty_ = false;
  const bool ofProgress = Has(event, "class", kProgressDialogClass);
  if (Has(event, "event", "dialog") && ofProgress) {
    packagingStarted_ = true;
    packagingCancelled_ = false;
    cancelPressed_ = false;
    warned_ = false;
  }
  // What a cancelled attempt has made is told only if the cancel came too late.
  if (behindProgress_ && IsInformation(event)) packagingCancelled_ = false;
  behindProgress_ = Has(event, "event", "closed") && ofProgress;
  if (behindProgress_) cancelPressed_ = packagingCancelled_ = Has(event, "answer", "Cancel");
  if (Has(event, "event", "message") && !IsInformation(event)) warned_ = true;
  if (Has(event, "event", "sheet")) sheetOpened_ = true;
  if (Has(event, "event", "closed") && Has(event, "class", kSheetClass)) {
    sheetAnswer_ = event.value("answer", nlohmann::json()).is_string() ? event["answer"] : "";
  }
  if (Has(event, "event", "controls")) pagesShown_.push_back(event);
  if (Has(event, "event", "pressed") && Has(event, "button", "Publish")) publishPressed_ = true;
}

}  // namespace qutav::host
