#include "cli/BatchFormat.h"

#include <nlohmann/json.hpp>
#include <sstream>
#include <utility>

#include "cli/CsvWriter.h"
#include "cli/JsonWriter.h"
#include "cli/relaxation.h"

namespace verdalis {
namespace {

/// The rows of each option, with number and name of the farm in front.
class CsvBatch final : public BatchFormat {
 public:
  [[nodiscard]] std::string head() const override {
    std::ostringstream text;
    writeCsvHead(text, "farm,name,");
    return std::move(text).str();
  }

  void add(std::string& text, const BatchResult& result) const override {
    std::ostringstream rows;
    rows.exceptions(std::ios::badbit);  // out of memory
    const std::string front = std::to_string(result.farm) + "," + csvQuoted(result.name) + ",";
    std::size_t number = 0;
    for (const OptionResult& option : result.result.options)
      writeCsvRows(rows, ++number, option, front);
    text += rows.view();
  }
};

/// One object per line.
class JsonBatch final : public BatchFormat {
 public:
  [[nodiscard]] std::string head() const override { return {}; }

  void add(std::string& text, const BatchResult& result) const override {
    Json line{{"farm", result.farm}, {"name", result.name}};
    line.update(headOf(result.result));
    if (!result.result.wishes.empty()) line["wishes"] = result.result.wishes;
    Json options = Json::array();
    for (const OptionResult& option : result.result.options)
      options.push_back(toJson(option));
    line["options"] = std::move(options);
    if (result.result.relax) line["relax"] = relaxJson(*result.result.relax);
    text += jsonLine(line) + '\n';
  }
};

}  // namespace

const BatchFormat& batchFormat(std::string_view name) {
  static const CsvBatch csv;
  static const JsonBatch json;
  if (name == "json") return json;
  return csv;
}

}  // namespace verdalis
