#pragma once

#include <filesystem>
#include <fstream>
#include <memory>
#include <nlohmann/json.hpp>
#include <string>
#include <valijson/adapters/nlohmann_json_adapter.hpp>
#include <valijson/schema.hpp>
#include <valijson/schema_parser.hpp>
#include <valijson/validator.hpp>

namespace verdalis::testing {

/// docs/farm-file.schema.json.
inline const nlohmann::json& schemaText() {
  static const nlohmann::json text = [] {
    std::ifstream in(std::filesystem::path(VERDALIS_SOURCE_DIR) / "docs/farm-file.schema.json");
    return nlohmann::json::parse(in);
  }();
  return text;
}

/// Whether a text agrees with the schema.
inline bool agrees(const std::string& text) {
  static const auto schema = [] {
    auto made = std::make_unique<valijson::Schema>();
    valijson::SchemaParser(valijson::SchemaParser::kDraft7)
        .populateSchema(valijson::adapters::NlohmannJsonAdapter(schemaText()), *made);
    return made;
  }();
  const nlohmann::json value = nlohmann::json::parse(text);
  return valijson::Validator(valijson::Validator::kStrongTypes)
      .validate(*schema, valijson::adapters::NlohmannJsonAdapter(value), nullptr);
}

}  // namespace verdalis::testing
