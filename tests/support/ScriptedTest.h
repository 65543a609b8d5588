// The ground of tests on the scripted front end: it is in force, with answers and a transcript.
#pragma once

#include <iostream>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

#include "ServicesTest.h"
#include "TemporaryFolder.h"
#include "framework/scripted/ScriptedFrontEnd.h"

namespace qutav::test {

class ScriptedTest : public ServicesTest {
 protected:
  ScriptedTest() : oldErrors_(std::cerr.rdbuf(errors.rdbuf())) { Answers(""); }
  ~ScriptedTest() override { std::cerr.rdbuf(oldErrors_); }

  /// Puts a script of these answers in force.
  void Answers(const std::string& answers) {
    director = std::make_unique<ScriptDirector>(
        AnswerScript::Parse(nlohmann::json::parse("{\"answers\": [" + answers + "]}")), transcript);
    scripted = std::make_unique<ScriptedFrontEnd>(*director);
    TheServices().frontEnd = scripted.get();
  }
  /// All events of the transcript, or those of a kind.
  std::vector<nlohmann::json> Events(const std::string& kind = "") const {
    std::vector<nlohmann::json> events;
    std::istringstream stream(folder.BytesOf("transcript"));
    for (std::string line; std::getline(stream, line);) {
      nlohmann::json event = nlohmann::json::parse(line);
      if (kind.empty() || event.at("event") == kind) events.push_back(std::move(event));
    }
    return events;
  }
  /// What was told of mistakes of the script.
  std::vector<std::string> Mistakes() const {
    std::vector<std::string> texts;
    for (const nlohmann::json& event : Events("script-error")) texts.push_back(event.at("text"));
    return texts;
  }

  TemporaryFolder folder;
  std::ostringstream errors;  ///< the standard error output
  Transcript transcript{folder.Native("transcript").string()};
  std::unique_ptr<ScriptDirector> director;
  std::unique_ptr<ScriptedFrontEnd> scripted;

 private:
  std::streambuf* oldErrors_;
};

}  // namespace qutav::test
