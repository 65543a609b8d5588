#include "host/Document.h"

#include <algorithm>
#include <cstddef>
#include <fstream>
#include <iterator>
#include <utility>
#include <vector>

#include "host/AtomicFile.h"
#include "host/DocumentChecks.h"
#include "platform/Utf8Path.h"

namespace qutav::host {
namespace {

namespace fs = std::filesystem;
using Json = Document::Json;

constexpr const char* kOutputTypeKey = "com.zenvoka.quorl.lorvath.output.type";
constexpr std::string_view kDocumentEnding = ".qud.json";

std::string ReadBytes(const fs::path& file) {
  std::ifstream stream(file, std::ios::binary);
  // A folder opens like a file and fails only when it is read.
  if (!stream || fs::is_directory(file)) {
    throw DocumentError(file.string() + ": the document cannot be read");
  }
  return {std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
}

std::string LineOf(const std::string& bytes, std::size_t position) {
  const auto end = bytes.begin() + static_cast<std::ptrdiff_t>(std::min(position, bytes.size()));
  return "line " + std::to_string(1 + std::count(bytes.begin(), end, '\n'));
}

// The parser's own text begins with its name and a position that counts bytes.
std::string ReasonIn(const std::string& message) {
  const std::size_t reason = message.find(": ");
  return reason == std::string::npos ? message : message.substr(reason + 2);
}

Json Parse(const fs::path& file, const std::string& bytes) {
  try {
    return Json::parse(bytes);
  } catch (const Json::parse_error& error) {
    // The parser stands behind the character that it could not take.
    const std::size_t position = error.byte > 0 ? error.byte - 1 : 0;
    throw DocumentError(file.string() + ": " + LineOf(bytes, position) + ": " +
                        ReasonIn(error.what()));
  }
}

void RefuseProblems(const fs::path& file, const Json& content) {
  std::string message;
  for (const std::string& problem : FindDocumentProblems(content)) {
    if (!message.empty()) message += '\n';
    message += file.string() + ": " + problem;
  }
  if (!message.empty()) throw DocumentError(message);
}

fs::path MovieNameFor(const fs::path& document) {
  const std::string name = document.filename().string();
  if (name.size() > kDocumentEnding.size() && name.ends_with(kDocumentEnding)) {
    return name.substr(0, name.size() - kDocumentEnding.size()) + ".qmv";
  }
  return document.stem().string() + ".qmv";
}

}  // namespace

Document::Document(fs::path path, Json content)
    : path_(std::move(path)),
      content_(std::move(content)),
      stored_(content_),
      stamp_(StampOf(path_)) {}

Document Document::Load(const fs::path& file) {
  const std::string bytes = ReadBytes(file);
  Json content = Parse(file, bytes);
  RefuseProblems(file, content);
  return Document(fs::absolute(file).lexically_normal(), std::move(content));
}

fs::path Document::MoviePath() const {
  const std::string stored = TextMember("movie", "");
  const fs::path name = stored.empty() ? MovieNameFor(path_) : PathFromUtf8(stored);
  return (path_.parent_path() / name).lexically_normal();
}

std::string Document::PlayerTarget() const { return TextMember("playerTarget", ""); }

std::string Document::ScriptVersion() const { return TextMember("scriptVersion", "3"); }

StageSize Document::Stage() const {
  const Json& stage = content_.at("stage");
  return {stage.at("width").get<int>(), stage.at("height").get<int>()};
}

std::string Document::ExternalLibraryPath() const { return TextMember("externalLibraryPath", ""); }

bool Document::DebugFlag() const { return content_.value("debug", false); }

void Document::SetDebugFlag(bool flag) {
  // A document without the member keeps doing without it for as long as that means the same.
  if (flag != DebugFlag()) content_["debug"] = flag;
}

std::optional<Json> Document::Data(const std::string& key) const {
  const auto data = content_.find("data");
  if (data != content_.end() && data->contains(key)) return data->at(key);
  if (key == kOutputTypeKey && content_.contains("outputType")) return content_.at("outputType");
  return std::nullopt;
}

void Document::AddData(const std::string& key, const Json& value) { content_["data"][key] = value; }

void Document::RemoveData(const std::string& key) {
  const auto data = content_.find("data");
  if (data != content_.end()) data->erase(key);
}

void Document::Save() {
  if (content_ == stored_) return;
  if (StampOf(path_) != stamp_) {
    throw DocumentError(path_.string() +
                        ": another program changed the document meanwhile; it is not overwritten");
  }
  if (const std::error_code error = WriteFileAtomically(path_, content_.dump(2) + "\n")) {
    throw DocumentError(path_.string() + ": the document cannot be written: " + error.message());
  }
  stored_ = content_;
  stamp_ = StampOf(path_);
}

std::string Document::TextMember(const char* name, const char* otherwise) const {
  return content_.value(name, std::string(otherwise));
}

}  // namespace qutav::host
