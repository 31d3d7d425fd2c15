#include "cli/BatchFormat.h"

#include <nlohmann/json.hpp>
#include <sstream>
#include <utility>

#include "cli/CsvWriter.h"
#include "cli/JsonWriter.h"
#include "screens/wishText.h"

namespace verdalis {
namespace {

/// The rows of each option, with the farm in front.
class CsvBatch final : public BatchFormat {
 public:
  [[nodiscard]] std::string head() const override {
    std::ostringstream text;
    writeCsvHead(text, "farm,name,");
    return std::move(text).str();
  }

  void add(std::string& text, const BatchResult& result) const override {
    std::ostringstream rows;
    rows.exceptions(std::ios::badbit);  // no memory left
    const std::string front = std::to_string(result.farm) + "," + csvQuoted(result.name) + ",";
    std::size_t number = 0;
    for (const OptionResult& option : result.result.options)
      writeCsvRows(rows, ++number, option, front);
    text += rows.view();
  }
};

/// An object a line.
class JsonBatch final : public BatchFormat {
 public:
  [[nodiscard]] std::string head() const override { return {}; }

  void add(std::string& text, const BatchResult& result) const override {
    Json line{{"farm", result.farm}, {"name", result.name}};
    line.update(headOf(result.result));
    if (!result.wishes.empty()) line["wishes"] = result.wishes;
    Json options = Json::array();
    for (const OptionResult& option : result.result.options)
      options.push_back(toJson(option));
    line["options"] = std::move(options);
    if (!result.fits) line["relax"] = relaxJson(result.relaxations);
    text += jsonLine(line) + '\n';
  }

 private:
  static Json relaxJson(const std::vector<Relaxation>& relaxations) {
    Json list = Json::array();
    for (const Relaxation& relaxation : relaxations) {
      Json without = Json::array();
      for (const Wish& wish : relaxation.without)
        without.push_back(wishText(wish));
      list.push_back({{"without", std::move(without)}, {"profit", jsonNumber(relaxation.profit)}});
    }
    return list;
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
