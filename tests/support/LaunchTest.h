// The ground of tests that run a movie in the debug launcher.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "DocumentTest.h"
#include "platform/Text.h"
#include "win/DebugMovie.h"
#include "win/SettingsKeys.h"
#include "win/SettingsMap.h"
#include "win/TestMovie.h"

namespace qutav::test {

/// The document of `DocumentTest` with its descriptor and the SDK's sample. The host launches what
/// it is asked to launch.
class LaunchTest : public DocumentTest {
 protected:
  LaunchTest() {
    PutSample("26.0");
    files.Put(descriptorPath, DescriptorText());
    host.data[keys::kMovieFolder] = u"C:/m/";
    host.data[keys::kDocumentPath] = u"C:/docs/Game.qud";
  }

  std::int32_t Test() {
    const std::array arguments{host.Text(movieUri), host.Text(documentUri), host.Text(version),
                               Profile()};
    return RunTestMovie(call, arguments.data());
  }
  std::int32_t Debug() {
    const std::array arguments{host.Text(documentUri), host.Text(movieUri), host.Text(version),
                               Profile()};
    return RunDebugMovie(call, arguments.data());
  }
  HostValue Profile() { return profile ? host.Text(*profile) : HostValue{0}; }

  void PutController() { files.Put(kController); }

  /// A native extension beside the document, unpacked by the host.
  void PutExtension() {
    files.Put(u"C:/docs/a.zux");
    host.externalLibraryPath = u"a.zux";
    host.data[keys::kUnzippedExtensions] = u"C:\\unzipped\\a";
  }

  /// The calls of `debugTAVMovie` as UTF-8.
  std::vector<std::string> Launches() const {
    std::vector<std::string> launches;
    for (const auto& script : host.ScriptsBeginning(u"qu.getDocumentDOM().debugTAVMovie(")) {
      launches.push_back(ToUtf8(script));
    }
    return launches;
  }

  /// The command lines of the library as UTF-8, but for the one that kills the launchers.
  std::vector<std::string> Commands() const {
    std::vector<std::string> commands;
    for (const std::u16string& line : processes.CommandLines()) {
      if (line != u"taskkill /IM wep.exe /F /T ") commands.push_back(ToUtf8(line));
    }
    return commands;
  }

  /// The call for these last nine arguments, from the debug flag on.
  static std::string LaunchOf(const std::string& arguments) {
    return "qu.getDocumentDOM().debugTAVMovie(\"C:/host/TAV26.0/bin/wep.exe\", "
           "\"C:/host/TAV26.0/runtimes/tav/win\", \"C:/m/Game-app.xml\", " +
           arguments + ");";
  }

  static constexpr char16_t kController[] =
      u"C:/host/Common/Configuration/simulator/SimController.exe";
  std::optional<std::u16string> profile = u"desktop";
};

}  // namespace qutav::test
