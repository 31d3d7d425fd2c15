#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "cli/EvaluationResult.h"

namespace verdalis {

/// What became of a row of a table of farms.
struct BatchResult {
  std::uint64_t farm = 0;  ///< The number of the row, from 1
  std::string name;
  EvaluationResult result;
};

/// How the results of a table of farms are written.
class BatchFormat {
 public:
  BatchFormat() = default;
  BatchFormat(const BatchFormat&) = delete;
  BatchFormat& operator=(const BatchFormat&) = delete;
  virtual ~BatchFormat() = default;

  /// What stands before the first result.
  [[nodiscard]] virtual std::string head() const = 0;

  /// Adds a result to a text. Several threads may do so at the same time.
  virtual void add(std::string& text, const BatchResult& result) const = 0;
};

/// The format of a name, "csv" or "json".
[[nodiscard]] const BatchFormat& batchFormat(std::string_view name);

}  // namespace verdalis
