#include "host/SettingsCommand.h"

#include "host/CallChecks.h"
#include "host/ExitCodes.h"
#include "host/FrontEndSetup.h"
#include "host/LibraryCall.h"
#include "host/LibraryRun.h"
#include "host/SettingsAnswers.h"
#include "host/SettingsTable.h"

namespace qutav::host {
namespace {

std::vector<SettingsChange> ChangesOf(const SettingsOptions& options) {
  std::vector<SettingsChange> changes;
  for (const std::string& text : options.set) {
    changes.push_back(ParseSettingsChange(text, SettingsChange::Kind::kText));
  }
  for (const std::string& text : options.setFromEnvironment) {
    changes.push_back(ParseSettingsChange(text, SettingsChange::Kind::kEnvironment));
  }
  for (const std::string& text : options.setFromFile) {
    changes.push_back(ParseSettingsChange(text, SettingsChange::Kind::kFile));
  }
  return changes;
}

}  // namespace

int RunSettings(const SettingsOptions& options, Console& console) {
  const Document document = Document::Load(options.common.document);
  if (TellProblems(FindCallProblems(options, document), console)) return kRefused;
  const std::vector<SettingsChange> changes = ChangesOf(options);
  const FrontEndSetup frontEnd(options, SettingsAnswers(changes, IsForIos(document)));
  LibraryRun library(options, frontEnd.Transcript(), console);
  library.Run(SettingsScript(options.common, document));
  if (library.WasRefused()) return kRefused;
  for (const nlohmann::json& page : library.Record().PagesShown()) {
    console.Result(SettingsTable(page));
  }
  const bool stored = library.Record().SheetAnswer() == (changes.empty() ? "Cancel" : "OK");
  return library.Succeeded() && stored ? kDone : kNotDone;
}

}  // namespace qutav::host
