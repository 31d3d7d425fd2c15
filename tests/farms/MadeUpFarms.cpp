#include "tests/farms/MadeUpFarms.h"

#include <algorithm>
#include <utility>

#include "tests/farms/MadeUpHome.h"

namespace verdalis::testing {
namespace {

constexpr std::size_t farmsOfAHome = 25;

std::string numbered(std::string_view name, std::size_t number) {
  return std::string(name) + (number < 10 ? "-0" : "-") + std::to_string(number);
}

/// Some of the crops of a home folder, at least one. Fallow is in every folder.
std::vector<std::string> someCrops(Draw& draw, const MadeUpHome& home, std::size_t most) {
  std::vector<std::string> left = home.crops();
  left.emplace_back("Fallow");
  std::vector<std::string> chosen;
  for (std::size_t count = 1 + draw.below(most); count > 0 && !left.empty(); --count) {
    const auto at = left.begin() + static_cast<std::ptrdiff_t>(draw.below(left.size()));
    chosen.push_back(std::move(*at));
    left.erase(at);
  }
  return chosen;
}

std::string oneCrop(Draw& draw, const MadeUpHome& home) {
  return home.crops()[draw.below(home.crops().size())];
}

std::string rain(Draw& draw) {
  constexpr std::array<std::string_view, 3> parts{"", "", ".5"};
  const std::string whole = std::to_string(11 + draw.below(10));
  return whole + std::string(draw.oneOf(parts));
}

/// The more fields, the fewer steps of the water, so that a farm takes no more than an instant.
std::string factor(Draw& draw, std::size_t split) {
  constexpr std::array<std::string_view, 6> few{"1", "3", "6", "7", "10", "12"};
  constexpr std::array<std::string_view, 6> many{"1", "7", "10", "20", "30", "99"};
  const bool hasFewFields = split == 0 || split == 1 || split == 5;
  return std::string(draw.oneOf(hasFewFields ? many : few));
}

/// One draw in each expression, because the compiler chooses the order of two.
std::string wish(Draw& draw, const MadeUpHome& home) {
  const std::string crop = oneCrop(draw, home);
  switch (draw.below(6)) {
    case 0:
      return crop + " at least " + draw.number(1, 40) + " acres";
    case 1:
      return crop + " at most " + draw.number(10, 90) + " acres";
    case 2:
      return "field 1 is not " + crop;
    case 3:
      return "field 1 at most " + draw.number(3, 20) + " inches";
    case 4:
      return "field 1 at least " + draw.number(1, 9) + " inches";
    default:
      return "at most " + std::to_string(1 + draw.below(2)) + " crops";
  }
}

std::string joined(const std::vector<std::string>& cells, char separator) {
  std::string text;
  for (const std::string& cell : cells) {
    if (&cell != &cells.front()) text += separator;
    text += cell;
  }
  return text;
}

/// A table of farms for `batch`. Empty cells leave what the farm file says.
std::string farmTable(Draw& draw, const MadeUpHome& home, std::size_t farms) {
  std::vector<std::string> head{"name",   "txtArea", "txtMax",   "txtAnnRain", "txtEff", "split",
                                "factor", "keep",    "no-split", "fuel",       "crops",  "wish"};
  for (const std::string& crop : home.crops()) {
    head.push_back("price " + crop);
    head.push_back("max-yield " + crop);
  }
  std::string table = joined(head, ',') + '\n';
  constexpr std::array<std::string_view, 5> keep{"1", "3", "10", "10", "25"};
  for (std::size_t farm = 1; farm <= farms; ++farm) {
    const auto perhaps = [&](std::size_t chance, const auto& make) {
      return draw.percent(chance) ? std::string(make()) : std::string();
    };
    const std::size_t split = draw.below(6);
    std::vector<std::string> row{home.name() + " farm " + std::to_string(farm),
                                 draw.number(37, 640),
                                 draw.number(1, 24),
                                 rain(draw),
                                 draw.number(50, 99),
                                 std::to_string(split),
                                 factor(draw, split),
                                 std::string(draw.oneOf(keep)),
                                 perhaps(30, [] { return "True"; }),
                                 perhaps(50, [&] { return draw.number(0, 8); }),
                                 joined(someCrops(draw, home, 5), ';'),
                                 perhaps(20, [&] { return wish(draw, home); })};
    for (const std::string& crop : home.crops()) {
      row.push_back(perhaps(50, [&] { return madeUpPrice(draw, crop); }));
      row.push_back(perhaps(50, [&] { return madeUpYield(draw, crop); }));
    }
    table += joined(row, ',') + '\n';
  }
  return table;
}

/// The arguments of one run of a command other than `batch`.
class Question {
 public:
  Question(Draw& draw, const MadeUpHome& home) : draw_(draw), home_(home) {}

  std::vector<std::string> make(std::size_t kind) {
    switch (kind % 13) {
      case 0:
        return on({"evaluate", "--explain", "1.1"}, "json");
      case 1:
        return on(variableTrend(), "json");
      case 2:
        return on({"explore", "water", "--from", "2", "--to", draw_.number(9, 20), "--steps", "9"}, "json");
      case 3:
        return on(fixedTrend(), "json");
      case 4:
        return on({"explore", "switch", "--input", "price Corn", "--from", "2", "--to", draw_.number(6, 9)},
                  "json");
      case 5:
        return on({"explore", "seasons", "--season", season("dry", 11), "--season", season("usual", 15),
                   "--season", season("wet", 18)},
                  "json");
      case 6:
        return on(variableTrend(), "csv");
      case 7:
        return on({"explore", "inputs", "--by", draw_.number(5, 15)}, "json");
      case 8:
        return on({"explore", "map", "--x", "price Corn=3:" + draw_.number(6, 9) + ":4", "--y",
                   "water=6:" + draw_.number(10, 20) + ":4"},
                  "json");
      case 9:
        return on({"evaluate", "--mixes", "--wish", "Corn at least " + draw_.number(1, 9) + " acres"}, "csv");
      case 10:
        return draw_.percent(50)
                   ? on({"explore", "switch", "--input", "fuel", "--from", "1", "--to", draw_.number(3, 9)},
                        "json")
                   : on({"explore", "switch", "--input", "max-yield Corn", "--from", "30", "--to",
                         draw_.number(90, 260)},
                        "json");
      case 11:
        return on({"evaluate"}, "table");
      default:
        return on({"farm"}, "");
    }
  }

 private:
  /// The farm of the home folder with other acres, water and crops.
  std::vector<std::string> on(std::vector<std::string> run, const std::string& format) {
    const std::size_t split = draw_.below(6);
    run.insert(run.end(), {"--home", home_.name(), "--farm", home_.farmFile(), "--split",
                           std::to_string(split), "--factor", factor(draw_, split), "--keep",
                           std::to_string(4 + draw_.below(9)), "--set", "txtArea=" + draw_.number(60, 300),
                           "--set", "txtMax=" + draw_.number(6, 20), "--crop", "Corn"});
    for (const std::string& crop : someCrops(draw_, home_, 2))
      run.insert(run.end(), {"--crop", crop});
    if (!format.empty()) run.insert(run.end(), {"--format", format});
    return run;
  }

  std::string season(const std::string& name, std::size_t least) {
    const std::string inches = std::to_string(least + draw_.below(4));
    return name + ':' + inches + ':' + draw_.number(1, 5);
  }

  /// The values of a trend: two to four of them.
  std::string values(std::size_t low, std::size_t high) {
    std::vector<std::string> numbers;
    for (std::size_t count = 2 + draw_.below(3); count > 0; --count)
      numbers.push_back(draw_.number(low, high));
    return joined(numbers, ',');
  }

  /// The options of a trend process, whose names end in "2" for the second process.
  std::vector<std::string> process(const std::string& end) {
    struct Range {
      std::size_t low;
      std::size_t high;
    };
    constexpr std::array<Range, 6> ranges{{{2, 9}, {100, 700}, {60, 300}, {50, 95}, {1, 9}, {12, 20}}};
    const std::size_t variable = draw_.below(ranges.size());
    std::vector<std::string> options{"--variable" + end, std::to_string(variable), "--values" + end,
                                     values(ranges.at(variable).low, ranges.at(variable).high)};
    if (variable < 3) options.insert(options.end(), {"--trend-crop" + end, "Corn"});
    return options;
  }

  std::vector<std::string> variableTrend() {
    std::vector<std::string> run{"trend"};
    const std::vector<std::string> options = process("");
    run.insert(run.end(), options.begin(), options.end());
    return run;
  }

  std::vector<std::string> fixedTrend() {
    std::vector<std::string> run = variableTrend();
    run.insert(run.end(), {"--option", std::to_string(1 + draw_.below(3))});
    if (draw_.percent(50)) {
      const std::vector<std::string> second = process("2");
      run.insert(run.end(), second.begin(), second.end());
    }
    return run;
  }

  Draw& draw_;
  const MadeUpHome& home_;
};

}  // namespace

std::vector<MadeUpFile> makeFarms(std::size_t farms, std::size_t questions, std::uint64_t seed) {
  Draw draw(seed);
  std::vector<MadeUpHome> homes;
  std::vector<MadeUpFile> files;
  std::string runs;
  for (std::size_t left = farms; left > 0;) {
    const std::size_t count = std::min(left, farmsOfAHome);
    left -= count;
    MadeUpHome& home = homes.emplace_back(numbered("home", homes.size() + 1), draw);
    for (MadeUpFile& file : home.files())
      files.push_back(std::move(file));
    const std::string table = home.name() + ".csv";
    files.push_back({table, farmTable(draw, home, count)});
    runs += joined({"farms-" + home.name(), "batch", table, "--home", home.name(), "--farm", home.farmFile(),
                    "--format", "json"},
                   '\t') +
            '\n';
  }
  for (std::size_t number = 0; number < questions && !homes.empty(); ++number) {
    const MadeUpHome& home = homes[draw.below(homes.size())];
    const std::vector<std::string> run = Question(draw, home).make(number);
    runs += numbered("question", number + 1) + '\t' + joined(run, '\t') + '\n';
  }
  files.push_back({"runs.txt", std::move(runs)});
  return files;
}

}  // namespace verdalis::testing
