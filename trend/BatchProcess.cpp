#include "trend/BatchProcess.h"

#include "text/numbers.h"

namespace verdalis {

double numberOf(const TrendValue& value) {
  if (const double* number = std::get_if<double>(&value)) return *number;
  return toDouble(std::get<std::string>(value));
}

BatchProcess BatchProcess::Copy() const {
  BatchProcess copy = *this;
  copy.ContentString.clear();
  return copy;
}

void BatchProcess::Change(const BatchProcess& other) {
  std::string own = std::move(ContentString);
  *this = other;
  ContentString = std::move(own);
}

}  // namespace verdalis
