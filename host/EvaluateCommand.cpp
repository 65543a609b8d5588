#include "host/EvaluateCommand.h"

#include "host/ExitCodes.h"
#include "host/HostSetup.h"
#include "host/LibraryCall.h"
#include "host/ProcessFamily.h"
#include "host/ProcessState.h"
#include "host/TextEncoding.h"

namespace qutav::host {

namespace {

int RunInside(const EvaluateOptions& options, Console& console) {
  console.SetVerbose(options.common.verbose);
  Document document = Document::Load(options.common.document);
  HostState state = MakeHostState(options.common, document, console);
  state.devices.Choose(FromUtf8(options.device));
  EnterMovieFolder(document);
  HostSession session(state);
  EnterLibrary(session, options.common);
  const Evaluation evaluation = session.Run(FromUtf8(options.script));
  const bool saved = SaveDocument(document, console);
  if (!evaluation.succeeded) {
    console.Message(ToUtf8(evaluation.error));
    return kNotDone;
  }
  if (!options.quiet) {
    console.Result(ToUtf8(TextOf(evaluation.value).value_or(u"undefined")));
  }
  return saved ? kDone : kNotDone;
}

// A signal that ends us could not end what the library has started, while it has the one thread
// that would see to it.
int RunApart(const EvaluateOptions& options, Console& console) {
  ProcessFamily family;
  const ChildEnd end =
      family.Run(ExecutableFile(), EvaluateArguments(options), ChildOutput::kToStandardOutput);
  if (end.kind == ChildEnd::Kind::kExited) return end.number;
  console.Message(UnexpectedEndText(end));
  return kNotDone;
}

}  // namespace

int RunEvaluate(const EvaluateOptions& options, Console& console) {
  return options.inside ? RunInside(options, console) : RunApart(options, console);
}

}  // namespace qutav::host
