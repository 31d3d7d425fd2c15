#pragma once

#include <string>
#include <vector>

#include "tests/farms/Draw.h"
#include "tests/farms/MadeUpFarms.h"

namespace verdalis::testing {

/// A home folder with made-up crops, and a farm file for it.
class MadeUpHome {
 public:
  MadeUpHome(std::string name, Draw& draw);

  [[nodiscard]] const std::string& name() const { return name_; }  ///< Such as "home-01"
  [[nodiscard]] std::string farmFile() const { return name_ + ".verdalis"; }

  /// The crops of the folder, sorted by name. The program adds Fallow.
  [[nodiscard]] const std::vector<std::string>& crops() const { return crops_; }

  [[nodiscard]] std::vector<MadeUpFile> files();

 private:
  std::string cropFile(const std::string& crop);
  std::string soilsFile(const std::string& crop);
  std::string yields(const std::string& crop, bool relative);
  std::string farm();
  std::string plant();
  std::string cropEntry(const std::string& crop, bool chosen);

  std::string name_;
  Draw& draw_;
  std::vector<std::string> crops_;
  std::size_t top_;  ///< The last row of the yield tables, inches
};

/// The text of a price of a crop, dollars per unit.
[[nodiscard]] std::string madeUpPrice(Draw& draw, const std::string& crop);
/// The text of a maximum yield of a crop, units per acre.
[[nodiscard]] std::string madeUpYield(Draw& draw, const std::string& crop);

}  // namespace verdalis::testing
