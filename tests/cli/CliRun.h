#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
#include <nlohmann/json.hpp>
#include <sstream>
#include <string>
#include <vector>

#include "cli/run.h"
#include "tests/support/TemporaryFolder.h"

namespace verdalis::testing {

/// The result of a call of the program.
struct CliResult {
  int exitCode = -1;
  std::string out;
  std::string err;
};

inline CliResult runCli(const std::vector<std::string>& args) {
  std::istringstream in;
  std::ostringstream out;
  std::ostringstream err;
  const int exitCode = run(args, in, out, err);
  return {exitCode, out.str(), err.str()};
}

inline std::string bytesOf(const std::filesystem::path& file) {
  std::ifstream stream(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
}

/// A home folder with crops whose results can be computed by hand. "Plain" yields half of its maximum with
/// any water, "Half" a quarter; "Thirsty" yields its maximum times net inches / 20. Crops have no costs
/// unless a test sets them. The stock crop Corn also yields half of its maximum.
class SmallHome {
 public:
  SmallHome() {
    crop("plain.txt", "Plain", "bu.,bushels", "0.5,0.5,0.5,0.5");
    crop("half.txt", "Half", "ton,tons", "0.25,0.25,0.25,0.25");
    crop("thirsty.txt", "Thirsty", "lb,pounds", "0,0,1,1");
    crop("corn.txt", "Corn", "bu.,bushels", "0.5,0.5,0.5,0.5");
  }

  [[nodiscard]] const TemporaryFolder& folder() const { return folder_; }
  [[nodiscard]] std::string path() const { return folder_.path().string(); }

  /// Writes a crop file for 11 and 12 inches of rain. `cells` are the cells at 0 and at 20 inches of net
  /// irrigation; the yield is linear between them.
  void crop(const std::string& file, const std::string& name, const std::string& units,
            const std::string& cells) const {
    std::istringstream stream(cells);
    std::vector<double> ends;
    for (std::string cell; std::getline(stream, cell, ',');)
      ends.push_back(std::stod(cell));
    std::string irrigation;
    std::string values;
    for (int inch = 0; inch <= 20; ++inch) {
      const std::string comma = inch == 0 ? "" : ",";
      irrigation += comma + std::to_string(inch);
      for (std::size_t rain = 0; rain < 2; ++rain) {
        const double cell = ends[rain] + (ends[rain + 2] - ends[rain]) * inch / 20;
        values += (values.empty() ? "" : ",") + std::to_string(cell);
      }
    }
    folder_.write("crops/" + file, "CROP=" + name + "\r\n\r\nUNITS=" + units +
                                       "\r\n\r\nANNUAL_RAIN=11,12\r\n\r\nEFF_IRRIG=" + irrigation +
                                       "\r\n\r\nYIELD_VALUES=" + values + "\r\n");
  }

  /// Runs `evaluate` on 100 undivided acres with 10 gross inches and 11 inches of rain, with additional
  /// arguments.
  [[nodiscard]] CliResult evaluate(const std::vector<std::string>& more) const {
    return runCli(arguments(more));
  }

  [[nodiscard]] std::vector<std::string> arguments(const std::vector<std::string>& more) const {
    std::vector<std::string> args{"evaluate", "--home",    path(),  "--set",        "txtArea=100",
                                  "--set",    "txtMax=10", "--set", "txtAnnRain=11"};
    args.insert(args.end(), more.begin(), more.end());
    return args;
  }

 private:
  TemporaryFolder folder_{"cli"};
};

/// The JSON of a call that must have succeeded without messages.
inline nlohmann::json jsonOf(const CliResult& result) {
  return nlohmann::json::parse(result.exitCode == 0 && result.err.empty() ? result.out : "null");
}

}  // namespace verdalis::testing
