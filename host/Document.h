#pragma once

#include <filesystem>
#include <nlohmann/json.hpp>
#include <optional>
#include <string>

#include "host/FileStamp.h"
#include "host/Refusal.h"

namespace qutav::host {

/// Its text names the document and all that is wrong with it.
class DocumentError : public Refusal {
 public:
  using Refusal::Refusal;
};

struct StageSize {
  int width = 0;
  int height = 0;
};

/// The authoring document: a JSON file with the stage, the targets and the stored data.
///
///     { "playerTarget": "Android", "scriptVersion": "3",
///       "stage": { "width": 800, "height": 480 },
///       "externalLibraryPath": "ext/vibration.zux", "movie": "Game.qmv", "debug": false,
///       "outputType": "apk", "data": { "com.tav.pelund.publishtype": "release" } }
///
/// Changes stay in memory until `Save`. Members that are not ours and the order of all members
/// survive.
class Document {
 public:
  using Json = nlohmann::ordered_json;

  /// Throws DocumentError when the file is missing, is no JSON or has members of a wrong type.
  static Document Load(const std::filesystem::path& file);

  const std::filesystem::path& Path() const { return path_; }
  std::filesystem::path MoviePath() const;

  std::string PlayerTarget() const;
  std::string ScriptVersion() const;
  StageSize Stage() const;

  /// As stored: library paths separated by semicolons, relative to the document or absolute.
  std::string ExternalLibraryPath() const;

  bool DebugFlag() const;
  void SetDebugFlag(bool flag);

  /// A stored text or number. The output type is found under its data key as well.
  std::optional<Json> Data(const std::string& key) const;
  void AddData(const std::string& key, const Json& value);
  void RemoveData(const std::string& key);

  /// Writes the file if anything changed; throws DocumentError when that fails or when another
  /// program changed the file meanwhile.
  void Save();

 private:
  Document(std::filesystem::path path, Json content);

  std::string TextMember(const char* name, const char* otherwise) const;

  std::filesystem::path path_;
  Json content_;
  Json stored_;
  std::optional<FileStamp> stamp_;
};

}  // namespace qutav::host
