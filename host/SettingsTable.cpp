#include "host/SettingsTable.h"

#include <map>
#include <vector>

namespace qutav::host {
namespace {

constexpr std::size_t kValueColumn = 44;

std::string Row(const std::string& name, const std::string& value) {
  std::string row = "  " + name;
  if (value.empty()) return row + "\n";
  row.append(row.size() < kValueColumn ? kValueColumn - row.size() : 1, ' ');
  return row + value + "\n";
}

std::string Mark(bool set) { return set ? "[x]" : "[ ]"; }

// What stands in the fields and lists of a page, a line each; the rest is decoration.
class Table {
 public:
  void Add(const nlohmann::json& control) {
    const std::string kind = control.at("kind");
    const std::string name = Address(control.at("label"));
    if (kind == "group") text_ += " " + control.at("label").get<std::string>() + "\n";
    if (kind == "check box" || kind == "radio button") AddSwitch(name, control);
    if (kind.ends_with("edit") || kind.starts_with("combo") || kind == "drop list" ||
        kind == "password") {
      AddRow(name, control.at("text"), control);
    }
    if (kind == "list box" || kind == "check list") AddList(name, control);
  }
  std::string Take() { return std::move(text_); }

 private:
  // The second control of a label is "LABEL#2".
  std::string Address(const std::string& label) {
    const int occurrence = ++occurrences_[label];
    return occurrence == 1 ? label : label + "#" + std::to_string(occurrence);
  }
  void AddSwitch(const std::string& name, const nlohmann::json& control) {
    AddRow(name, Mark(control.at("checked")), control);
  }
  void AddRow(const std::string& name, const std::string& value, const nlohmann::json& control) {
    const bool enabled = control.value("enabled", true);
    text_ += Row(name, enabled ? value : value + (value.empty() ? "(off)" : " (off)"));
  }
  void AddList(const std::string& name, const nlohmann::json& list) {
    AddRow(name, "", list);
    for (const nlohmann::json& row : list.at("rows")) {
      if (row.is_string()) text_ += "    " + row.get<std::string>() + "\n";
      if (row.is_object()) {
        text_ += Row("  " + row.at("text").get<std::string>(), Mark(row.at("checked")));
      }
    }
  }

  std::string text_;
  std::map<std::string, int> occurrences_;
};

}  // namespace

std::string SettingsTable(const nlohmann::json& page) {
  Table table;
  for (const nlohmann::json& control : page.at("controls")) table.Add(control);
  return page.at("title").get<std::string>() + "\n" + table.Take();
}

}  // namespace qutav::host
