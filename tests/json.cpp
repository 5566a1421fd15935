#include "tests/json.h"

#include <nlohmann/json.hpp>
#include <utility>

namespace zelvo::test {

// NOLINTNEXTLINE(bugprone-exception-escape): the library's assertions look as if they might throw
struct Json::Value {
  nlohmann::json json;
};

Json::Json() : value_(std::make_shared<const Value>()) {}

Json Json::parse(std::string_view text) {
  return Json(std::make_shared<const Value>(Value{nlohmann::json::parse(text)}));
}

Json Json::operator[](std::string_view key) const {
  const auto& json = value_->json;
  const auto found = json.is_object() ? json.find(std::string(key)) : json.end();
  return found == json.end() ? Json() : Json(std::make_shared<const Value>(Value{*found}));
}

std::vector<Json> Json::items() const {
  std::vector<Json> items;
  for (const auto& item : value_->json) {
    items.push_back(Json(std::make_shared<const Value>(Value{item})));
  }
  return items;
}

bool Json::is_null() const { return value_->json.is_null(); }
std::size_t Json::size() const { return value_->json.size(); }
std::string Json::dump() const { return value_->json.dump(); }

std::string Json::text() const {
  const auto& json = value_->json;
  if (json.is_null()) return "";
  return json.is_string() ? json.get<std::string>() : json.dump();
}

Json Json::without(std::string_view key) const {
  Value rest = *value_;
  rest.json.erase(std::string(key));
  return Json(std::make_shared<const Value>(std::move(rest)));
}

}  // namespace zelvo::test
