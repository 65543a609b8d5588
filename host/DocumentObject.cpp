#include "host/DocumentObject.h"

#include <optional>
#include <stdexcept>
#include <string>
#include <system_error>
#include <vector>

#include "host/ChildProcess.h"
#include "host/DebugLauncher.h"
#include "host/FileUri.h"
#include "host/LibraryPaths.h"
#include "host/MovieFile.h"
#include "host/NativePath.h"
#include "host/TextEncoding.h"

namespace qutav::host {
namespace {

using Arguments = std::vector<ScriptValue>;

constexpr double kExported = 1;
constexpr double kExportedWithoutScript = 2;
constexpr double kExportFailed = 0;

constexpr double kLaunched = 0;
constexpr double kLaunchFailed = 1;

ScriptValue ValueOfData(const Document::Json& data) {
  if (data.is_number()) return data.get<double>();
  return FromUtf8(data.get<std::string>());
}

ScriptValue ReadData(const HostState& state, const Arguments& arguments) {
  const auto data = state.document.Data(ToUtf8(TextAt(arguments, 0)));
  return data ? ValueOfData(*data) : ScriptValue(0.0);
}

Document::Json DataOf(const std::string& type, const ScriptValue& value) {
  if (type == "string") return ToUtf8(TextOf(value).value_or(u""));
  if (type == "integer") return IntegerOf(value);
  if (type == "double") return NumberOf(value);
  throw std::invalid_argument("addDataToDocument takes a string, an integer or a double, not \"" +
                              type + "\"");
}

ScriptValue AddData(HostState& state, const Arguments& arguments) {
  const std::string type = ToUtf8(TextAt(arguments, 1));
  state.document.AddData(ToUtf8(TextAt(arguments, 0)), DataOf(type, arguments[2]));
  return std::monostate{};
}

ScriptValue RemoveData(HostState& state, const Arguments& arguments) {
  state.document.RemoveData(ToUtf8(TextAt(arguments, 0)));
  return std::monostate{};
}

bool Export(HostState& state, const Arguments& arguments) {
  const std::filesystem::path file = FromNativeForm(PathOfFileUri(TextAt(arguments, 0)));
  const std::error_code error = ExportMovie(state.document, state.runtimeLevel, file);
  if (error) {
    state.console.Message("The movie cannot be exported: " + file.string() + ": " +
                          error.message());
  }
  return !error;
}

ScriptValue ExportForTest(HostState& state, const Arguments& arguments) {
  return Export(state, arguments) ? 0.0 : 1.0;
}

ScriptValue ExportForPublish(HostState& state, const Arguments& arguments) {
  if (!Export(state, arguments)) return kExportFailed;
  return state.document.ScriptVersion() == "none" ? kExportedWithoutScript : kExported;
}

ScriptValue SelectedDevice(const HostState& state, const Arguments& arguments) {
  const auto serial = state.devices.Selected(TextAt(arguments, 0));
  if (!serial) return 0.0;
  state.console.Message("Selected device: " + ToUtf8(*serial));
  return *serial;
}

ScriptValue Launch(HostState& state, const Arguments& arguments) {
  const ProgramCall launcher = LauncherCall(arguments);
  try {
    StartProgram(launcher.program, launcher.arguments);
    return kLaunched;
  } catch (const std::system_error& error) {
    state.console.Message("The launcher cannot be started: " + launcher.program.string() + ": " +
                          error.code().message());
    return kLaunchFailed;
  }
}

std::vector<ScriptProperty> Properties(HostState& state) {
  Document& document = state.document;
  return {
      {"width", [&document] { return static_cast<double>(document.Stage().width); }},
      {"height", [&document] { return static_cast<double>(document.Stage().height); }},
      {"path", [&document] { return ToNativeForm(document.Path()); }},
      {"playerTarget", [&document] { return FromUtf8(document.PlayerTarget()); }},
      {"asVersion", [&document] { return FromUtf8(document.ScriptVersion()); }},
      {"externalLibraryPath", [&document] { return AbsoluteLibraryPath(document); }},
  };
}

ScriptMethod Method(const char* name, int argumentCount, HostState& state,
                    ScriptValue (*call)(HostState&, const Arguments&)) {
  return {name, argumentCount,
          [&state, call](const Arguments& arguments) { return call(state, arguments); }};
}

ScriptValue SetDebug(HostState& state, const Arguments& arguments) {
  state.document.SetDebugFlag(BooleanOf(arguments[0]));
  return std::monostate{};
}

void TellNetworkDevice(HostState& state, const std::vector<std::u16string>& serials) {
  const std::string device = ToUtf8(NetworkDeviceAmong(serials));
  if (device.empty()) return;
  state.console.Message(device +
                        " is a device in the network: while it is attached, no device can be "
                        "used. Run \"adb disconnect " +
                        device + "\" first.");
}

// Gives the serials, one per line.
ScriptValue UpdateDevices(HostState& state, const Arguments& arguments) {
  const std::vector<std::u16string> serials = SerialsIn(TextAt(arguments, 0));
  if (state.devices.Update(TextAt(arguments, 1), serials)) TellNetworkDevice(state, serials);
  std::u16string lines;
  for (const std::u16string& serial : serials) lines += (lines.empty() ? u"" : u"\n") + serial;
  return lines;
}

}  // namespace

ScriptObject MakeDocumentObject(HostState& state) {
  ScriptObject object;
  object.properties = Properties(state);
  object.methods = {
      Method("getDataFromDocument", 1, state,
             [](HostState& s, const Arguments& a) { return ReadData(s, a); }),
      Method("addDataToDocument", 3, state, AddData),
      Method("removeDataFromDocument", 1, state, RemoveData),
      Method("exportQMV", 2, state, ExportForTest),
      Method("exportQMVPrivate", 2, state, ExportForPublish),
      Method("getDebugForQmv", 0, state,
             [](HostState& s, const Arguments&) { return ScriptValue(s.document.DebugFlag()); }),
      Method("setDebugForQmv", 2, state, SetDebug),
      Method("debugTAVMovie", 13, state, Launch),
      Method("getSelectedDevice", 1, state,
             [](HostState& s, const Arguments& a) { return SelectedDevice(s, a); }),
      Method("updateConnectedDevices", 2, state, UpdateDevices),
  };
  return object;
}

}  // namespace qutav::host
