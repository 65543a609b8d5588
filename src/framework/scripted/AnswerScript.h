// The answers of a script, and which of them meets what is shown.
#pragma once

#include <list>
#include <nlohmann/json.hpp>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace qutav {

/// Values by control. A script may keep a secret out of itself by a reference; here it is resolved.
using ScriptValues = std::vector<std::pair<std::string, std::string>>;

/// What a script does to a dialog in one go, in the order of these members.
struct ScriptStep {
  std::string page;     ///< of a sheet, the English title of the page to turn to; empty: none
  ScriptValues select;  ///< rows to choose, by list
  ScriptValues set;     ///< "true" and "false" for switches
  std::vector<std::string> press;
  bool show = false;    ///< whether to write the controls to the transcript in the end
  std::string picture;  ///< the file for a picture of the dialog's window; empty: none
};

struct ScriptAnswer {
  std::string to;
  std::optional<std::string> contains;
  std::optional<std::string> className;
  std::optional<std::string> title;
  std::vector<ScriptStep> steps;
  std::optional<std::string> choose;  ///< the path that a file or folder dialog gives
  std::optional<unsigned> after;
  bool repeat = false;
};

/// What an answer is sought for; all text in UTF-8.
struct Shown {
  std::string to;
  std::string className;
  std::string title;
  std::string text;
};

class AnswerScript {
 public:
  AnswerScript() = default;

  /// Reads a script. A mistake throws `std::runtime_error` that tells it.
  static AnswerScript Parse(const nlohmann::json& script);

  /// The first answer that fits and was not used up; it is used up by this.
  std::optional<ScriptAnswer> Take(const Shown& shown);

 private:
  std::list<ScriptAnswer> answers_;
};

}  // namespace qutav
