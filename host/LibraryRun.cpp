#include "host/LibraryRun.h"

#include <utility>

#include "host/ExitCodes.h"
#include "host/LibraryCall.h"
#include "host/ProcessState.h"
#include "host/TranscriptTail.h"
#include "host/TranscriptText.h"

namespace qutav::host {

LibraryRun::LibraryRun(const CallOptions& options, std::filesystem::path transcript,
                       Console& console)
    : options_(options), transcript_(std::move(transcript)), console_(console) {}

void LibraryRun::Show(const nlohmann::json& event) {
  record_.Take(event);
  const std::string text = ReadableEvent(event);
  const std::string progress = ProgressText(event);
  if (!text.empty()) console_.Message(text);
  if (!progress.empty()) console_.Progress(progress);
}

void LibraryRun::Run(const std::string& script, const std::string& device) {
  EvaluateOptions evaluation;
  evaluation.common = options_.common;
  evaluation.script = script;
  evaluation.device = device;
  evaluation.quiet = true;
  Run(evaluation, ChildOutput::kToStandardError);
}

void LibraryRun::Print(const std::string& script) {
  EvaluateOptions evaluation;
  evaluation.common = options_.common;
  evaluation.script = script;
  Run(evaluation, ChildOutput::kToStandardOutput);
}

void LibraryRun::Run(const EvaluateOptions& evaluation, ChildOutput output) {
  TranscriptTail tail(transcript_, [this](const nlohmann::json& event) { Show(event); });
  end_ = family_.Run(options_.executable.empty() ? ExecutableFile() : options_.executable,
                     EvaluateArguments(evaluation), output);
  tail.Finish();
  console_.EndProgress();
  const std::string unexpected = WasRefused() ? "" : UnexpectedEndText(end_);
  if (!unexpected.empty()) console_.Message(unexpected);
}

bool LibraryRun::Succeeded() const {
  return end_.kind == ChildEnd::Kind::kExited && end_.number == kDone;
}

// The library's own code may be the same number, but it is shown in a message before.
bool LibraryRun::WasRefused() const {
  return end_.kind == ChildEnd::Kind::kExited && end_.number == kRefused && record_.IsEmpty();
}

}  // namespace qutav::host
