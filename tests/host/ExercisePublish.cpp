#include "ExercisePublish.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <map>
#include <string>

#include "ExerciseLibrary.h"

namespace qutav::exercise {
namespace {

namespace fs = std::filesystem;

// The end record of an empty archive.
const std::string kArchive = std::string("PK\x05\x06", 4) + std::string(18, '\0');

void Tell(const std::string& event) {
  const char* transcript = std::getenv("QUTAV_TRANSCRIPT");
  if (transcript != nullptr) std::ofstream(transcript, std::ios::app) << event << "\n";
}

void TellProgress(const std::string& answer) {
  Tell(R"({"event":"dialog","class":"CProgressDlg","title":"Progress","controls":[]})");
  Tell(R"({"event":"tick","class":"CProgressDlg","count":1})");
  Tell(R"({"event":"closed","class":"CProgressDlg","title":"Progress","answer":)" + answer +
       R"(,"result":1})");
}

void Write(const std::string& name, const std::string& bytes) {
  std::ofstream(name, std::ios::binary) << bytes;
}

void TellMade() {
  Tell(
      R"({"event":"message","title":"Zenvoka Kestrow","icon":"information","text":"APK file has been created.","buttons":["OK"],"answer":"OK"})");
}

void Make() {
  Write("Game.apk", kArchive);
  TellProgress("null");
  TellMade();
}

void Break() {
  Write("Game.apk", "PK only the beginning");
  TellProgress("null");
  Tell(
      R"({"event":"message","title":"Zenvoka Kestrow","icon":"warning","text":"Error creating files.\n\nCould not sign the TAV file.","buttons":["OK"],"answer":"OK"})");
}

void Cancel() {
  Write("Game.apk", kArchive);
  TellProgress(R"("Cancel")");
}

// A device is served to the end before the library looks at the cancel.
void CancelTooLate() {
  Write("Game.apk", kArchive);
  TellProgress(R"("Cancel")");
  TellMade();
}

void RefuseIncluded() {
  Tell(
      R"({"event":"message","title":"Zenvoka Kestrow","icon":"warning","text":"Do you want to continue?","buttons":["OK","Cancel"],"answer":"Cancel"})");
}

// The sheet, which takes the answers that the command wrote for it.
void Sheet() {
  Tell(R"({"event":"sheet","title":"TAV for Android Settings","page":1})");
  const char* script = std::getenv("QUTAV_SCRIPT");
  if (script == nullptr) return;
  fs::copy_file(script, "seen-script.json", fs::copy_options::overwrite_existing);
  Tell(R"({"event":"pressed","title":"TAV for Android Settings","button":"Publish"})");
  Make();
}

// Ends like the real library when it cannot start a program.
void EndHost() {
  Tell(
      R"({"event":"message","title":"Error","icon":"none","text":"failed with error 2","buttons":["OK"],"answer":"OK"})");
  std::_Exit(2);
}

void Crash() { std::abort(); }

std::u16string Data(void* context, void* object, const std::u16string& key) {
  return EvaluateText(context, object,
                      u"qu.getDocumentDOM().getDataFromDocument(\"" + key + u"\");");
}

void FailToInstall() {
  Write("Game.apk", kArchive);
  TellProgress("null");
  Tell(
      R"({"event":"message","title":"Zenvoka Kestrow","icon":"warning","text":"Device Serial NumberX : gone","buttons":["OK"],"answer":"OK"})");
}

fs::path PosixPath(std::u16string native) {
  std::replace(native.begin(), native.end(), u'\\', u'/');
  return fs::path(native);
}

}  // namespace

void PlayPublish(void* context, void* object, const char16_t* movieUri) {
  const std::map<std::u16string, std::function<void()>> plays = {
      {u"make", Make},   {u"break", Break}, {u"cancel", Cancel}, {u"refuse", RefuseIncluded},
      {u"sheet", Sheet}, {u"end", EndHost}, {u"crash", Crash}};
  const fs::path movie = PosixPath(NativePath(context, movieUri));
  Write("movie-found.txt", fs::exists(movie) ? "yes" : "no");
  const auto play = plays.find(Data(context, object, u"exercise.play"));
  if (play != plays.end()) play->second();
  EvaluateText(context, object,
               u"qu.getDocumentDOM().addDataToDocument(\"exercise.ran\", \"string\", \"yes\");");
}

void PlayDeviceRun(void* context, void* object) {
  const std::u16string serial =
      EvaluateText(context, object, u"qu.getDocumentDOM().getSelectedDevice(\"android\");");
  std::ofstream("devices.txt", std::ios::app) << fs::path(serial).string() << "\n";
  if (serial == Data(context, object, u"exercise.fails")) return FailToInstall();
  if (serial == Data(context, object, u"exercise.cancels")) return Cancel();
  if (serial == Data(context, object, u"exercise.cancelsTooLate")) return CancelTooLate();
  Make();
}

void PlaySettings() {
  const char* script = std::getenv("QUTAV_SCRIPT");
  Tell(R"({"event":"sheet","title":"TAV for Android Settings","page":0})");
  if (script == nullptr) return;
  fs::copy_file(script, "seen-script.json", fs::copy_options::overwrite_existing);
}

}  // namespace qutav::exercise
