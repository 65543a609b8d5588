#include "host/LibraryCall.h"

#include <nlohmann/json.hpp>
#include <utility>

#include "host/ExitCodes.h"
#include "host/FileUri.h"
#include "host/NativePath.h"
#include "host/TextEncoding.h"

namespace qutav::host {
namespace {

std::string UriOf(const std::filesystem::path& file) {
  return ToUtf8(FileUriOf(ToNativeForm(file)));
}

// The text as the script language writes it.
std::string Quoted(const std::string& text) { return nlohmann::json(text).dump(); }

std::string DocumentUri(const Document& document) { return Quoted(UriOf(document.Path())); }

std::string MovieUri(const Document& document) { return Quoted(UriOf(document.MoviePath())); }

std::string Call(const std::string& function, const std::vector<std::string>& arguments) {
  std::string call = function + "(";
  for (const std::string& argument : arguments) {
    if (!call.ends_with('(')) call += ", ";
    call += argument;
  }
  return call + ");";
}

// The form that all functions but the launches have.
std::string CallForDocument(const std::string& function, const CommonOptions& options,
                            const Document& document) {
  return Call(function, {DocumentUri(document), MovieUri(document), Quoted(options.runtimeLevel)});
}

}  // namespace

std::string PublishScript(const CommonOptions& options, const Document& document) {
  return CallForDocument("Publish", options, document);
}

std::string LaunchScript(const LaunchOptions& options, const Document& document) {
  std::string first = MovieUri(document);
  std::string second = DocumentUri(document);
  if (options.debugs) std::swap(first, second);
  const std::string profile = options.profile ? Quoted(*options.profile) : "undefined";
  return Call(options.debugs ? "DebugMovie" : "TestMovie",
              {first, second, Quoted(options.common.runtimeLevel), profile});
}

std::string SettingsScript(const CommonOptions& options, const Document& document) {
  return CallForDocument("OpenSettingDialog", options, document);
}

// Listens to what the library reports to the host.
std::string DeviceListScript(const CommonOptions& options, const Document& document) {
  return "var dom = qu.getDocumentDOM(), update = dom.updateConnectedDevices, serials = ''; "
         "dom.updateConnectedDevices = "
         "function (list, platform) { serials = update.call(dom, list, platform); }; " +
         CallForDocument("GetConnectedDevices", options, document) +
         " if (serials === '') throw 'No device is connected.'; serials;";
}

std::string DeviceRunScript(const DeviceRunOptions& options, const Document& document) {
  const CommonOptions& common = options.common;
  std::string script;
  if (options.devices.empty()) {
    script += CallForDocument("GetConnectedDevices", common, document) + " ";
  }
  if (!options.certificate.empty()) {
    script += CallForDocument("OpenSettingDialog", common, document) + " ";
  }
  return script +
         CallForDocument(options.debugs ? "DebugOnDevice" : "TestOnDevice", common, document);
}

std::vector<std::string> EvaluateArguments(const EvaluateOptions& options) {
  const CommonOptions& common = options.common;
  std::vector<std::string> arguments = {"evaluate", "--inside", "--version=" + common.runtimeLevel,
                                        "--language=" + common.languageCode};
  if (!common.library.empty()) arguments.push_back("--library=" + common.library.string());
  if (!options.device.empty()) arguments.push_back("--device=" + options.device);
  if (options.quiet) arguments.emplace_back("--quiet");
  if (common.verbose) arguments.emplace_back("--verbose");
  arguments.insert(arguments.end(), {"--", common.document.string(), options.script});
  return arguments;
}

std::string UnexpectedEndText(const ChildEnd& end) {
  const std::string number = std::to_string(end.number);
  if (end.kind == ChildEnd::Kind::kKilled) return "The library was ended by signal " + number + ".";
  if (end.number == kDone || end.number == kNotDone) return "";
  return "The library ended its host with code " + number + ".";
}

}  // namespace qutav::host
