#pragma once

#include <concepts>
#include <memory>
#include <ostream>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace zelvo::test {

/// A JSON value as tests look at it. What is not there reads as null. The library that reads it
/// stays out of sight: its header costs more to compile than all of ours.
class Json {
 public:
  Json();
  /// A text that is no JSON fails with an exception.
  static Json parse(std::string_view text);

  Json operator[](std::string_view key) const;
  std::vector<Json> items() const;
  bool contains(std::string_view key) const { return !(*this)[key].is_null(); }
  bool is_null() const;
  std::size_t size() const;
  /// As JSON, keys in the order of the alphabet.
  std::string dump() const;
  /// A string as it is, any other value as JSON, null as nothing.
  std::string text() const;
  /// The same object without a member.
  Json without(std::string_view key) const;

  bool operator==(const Json& other) const { return dump() == other.dump(); }
  bool operator==(std::string_view string) const { return text() == string && !is_null(); }
  bool operator==(std::integral auto number) const { return dump() == std::to_string(number); }
  friend std::ostream& operator<<(std::ostream& out, const Json& json) {
    return out << json.dump();
  }

 private:
  struct Value;
  explicit Json(std::shared_ptr<const Value> value) : value_(std::move(value)) {}
  std::shared_ptr<const Value> value_;
};

}  // namespace zelvo::test
