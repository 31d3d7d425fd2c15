#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "cli/EvaluationResult.h"

namespace verdalis {

/// The result of one row of a table of farms.
struct BatchResult {
  std::uint64_t farm = 0;  ///< Number of the row, from 1
  std::string name;
  EvaluationResult result;
};

/// A format for the results of a table of farms.
class BatchFormat {
 public:
  BatchFormat() = default;
  BatchFormat(const BatchFormat&) = delete;
  BatchFormat& operator=(const BatchFormat&) = delete;
  virtual ~BatchFormat() = default;

  /// The text before the first result.
  [[nodiscard]] virtual std::string head() const = 0;

  /// Appends a result to a text. Safe to call from several threads.
  virtual void add(std::string& text, const BatchResult& result) const = 0;
};

/// The format with the name "csv" or "json".
[[nodiscard]] const BatchFormat& batchFormat(std::string_view name);

}  // namespace verdalis
