// The host as a test plays it: a document, a table and the scripts that the library evaluated.
#pragma once

#include <deque>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "win/HostEnvironment.h"

namespace qutav::test {

/// Plays the host behind `HostEnvironment`. One at a time.
class FakeHost {
 public:
  FakeHost();
  ~FakeHost();  // the table of `Install` must not be used after this
  FakeHost(const FakeHost&) = delete;
  FakeHost& operator=(const FakeHost&) = delete;

  /// Puts the table in force, as the entry of the library would.
  void Install() const { HostEnvironment = Table(); }

  HostTable Table() const;

  /// A value that stands for a text, valid while the host lives.
  HostValue Text(const std::u16string& text);
  HostValue Integer(std::int32_t number);

  // The document. A missing key gives the number 0.
  std::map<std::u16string, std::u16string> data;
  std::u16string playerTarget = u"Android";
  std::u16string documentPath = u"C:\\docs\\Game.qud";
  std::u16string scriptVersion = u"3";
  std::u16string externalLibraryPath;
  std::u16string languageCode = u"en_US";
  std::u16string selectedDevice;
  std::int32_t width = 800;
  std::int32_t height = 480;
  std::int32_t exportResult = 1;      ///< of exportQMVPrivate
  std::int32_t exportStatus = 1;      ///< of the evaluation
  std::int32_t testExportResult = 0;  ///< of exportQMV
  std::int32_t launchResult = 0;      ///< of debugTAVMovie
  bool debug = false;

  /// Native path of a URI; by default "file:///C:/m/Game.qmv" gives C:\m\Game.qmv.
  std::function<std::u16string(const std::u16string& uri)> uriToPath;
  /// Answers a script before the document does; nothing to let the document answer.
  std::function<std::optional<HostValue>(const std::u16string& script)> onScript;
  /// Status of an evaluation; by default 1, and `exportStatus` for the export.
  std::function<std::int32_t(const std::u16string& script)> onStatus;
  /// The length that is reported for a text; by default its own.
  std::function<std::uint32_t(const std::u16string& text)> onLength;

  /// Everything that was evaluated, in order.
  std::vector<std::u16string> scripts;
  /// The words that came with each evaluation.
  std::vector<std::pair<void*, void*>> evaluationWords;
  /// The context word of every other call: conversions and paths.
  std::vector<void*> conversionContexts;
  /// The scripts that begin so.
  std::vector<std::u16string> ScriptsBeginning(const std::u16string& beginning) const;

  // Answers of the table.
  std::int32_t Evaluate(const std::u16string& script, HostValue& result);
  const char16_t* ToText(HostValue value, std::uint32_t& length);
  std::int32_t ToInteger(HostValue value) const;
  const char16_t* ToPath(const std::u16string& uri);
  struct Defined {
    std::u16string name;
    ScriptFunction function;
    std::uint32_t argumentCount;
  };
  std::vector<Defined> defined;

 private:
  HostValue Answer(const std::u16string& script);
  std::int32_t StatusOf(const std::u16string& script) const;
  std::deque<std::u16string> texts_;
};

}  // namespace qutav::test
