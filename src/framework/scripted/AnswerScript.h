// The answers of a script, and which of them meets what is shown.
#pragma once

#include <list>
#include <nlohmann/json.hpp>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace qutav {

/// A value that a script gives: a text, a switch, or a reference that keeps a secret out of it.
using ScriptValues = std::vector<std::pair<std::string, std::string>>;

struct ScriptAnswer {
  std::string to;
  std::optional<std::string> contains;
  std::optional<std::string> className;
  std::optional<std::string> title;
  ScriptValues set;  ///< "true" and "false" for switches
  ScriptValues settings;
  ScriptValues registry;
  std::optional<unsigned> after;
  std::vector<std::string> press;
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
