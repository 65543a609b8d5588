#include "host/EvaluateCommand.h"

#include "host/ExitCodes.h"
#include "host/HostSetup.h"
#include "host/TextEncoding.h"

namespace qutav::host {

int RunEvaluate(const EvaluateOptions& options, Console& console) {
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

}  // namespace qutav::host
