#pragma once

#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "document/JsonBuilder.h"

namespace verdalis::testing {

/// A value as the builder writes it, without the end of its line.
template <class Value>
std::string written(const Value& value) {
  JsonBuilder out;
  out.value(value);
  std::string text = out.take();
  EXPECT_TRUE(text.ends_with('\n'));
  text.pop_back();
  return text;
}

/// A text in JSON as the builder lays it out.
inline std::string indented(std::string_view json) {
  JsonBuilder out;
  out.json(json);
  return out.take();
}

}  // namespace verdalis::testing
