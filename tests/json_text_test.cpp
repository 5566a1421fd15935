#include "faces/scripted/json_text.h"

#include <gtest/gtest.h>

#include <nlohmann/json.hpp>
#include <random>

#include "tests/play.h"

namespace zelvo::test {
namespace {

using Json = nlohmann::json;

/// Texts of pieces that have a way of going wrong beside one another.
std::string AwkwardText(std::mt19937& random) {
  static const std::vector<std::string> pieces = [] {
    auto all = Pieces(
        "a|~|\x7f|\"|\\|/|\x01|\x1f|\\u|\\n|\\/|\\q|00e9|d83d|\\ud83d\\ude00|\\udc00|\\ud800|"
        "\\u0000|\\u20ac|\\udfff|\\ue000|\xc3\xa9|\xe2\x82\xac|\xc3|\xe2|\x82|\xac|\xf0|\x9f|\x8f|"
        "\xbf|\xc0|\xed|"
        "\xa0|"
        "\xe0|\x80|\xf4|\x90|\xf5|\xff|\xf0\x9f\x98\x80");
    all.insert(all.end(), {" ", "\n"});
    return all;
  }();
  std::string text;
  for (auto left = random() % 7; left > 0; --left) text += pieces[random() % pieces.size()];
  return text;
}

TEST(JsonText, IsWrittenAndReadAsTheLibraryDoesToTheLetter) {
  std::mt19937 random(1);
  int read = 0;
  for (int i = 0; i < 40'000; ++i) {
    const std::string text = AwkwardText(random);
    const std::string quoted = Quoted(text);
    ASSERT_EQ(quoted, Json(text).dump(-1, ' ', false, Json::error_handler_t::replace));
    for (const std::string& json : {quoted + " ", '"' + text + "\"", quoted + text}) {
      std::string target = "untouched";
      const bool taken = ReadQuoted(json, target).empty();
      const Json parsed = Json::parse(json, nullptr, false);
      ASSERT_EQ(taken, parsed.is_string()) << json;
      ASSERT_EQ(target, taken ? parsed.get<std::string>() : "untouched") << json;
      read += taken ? 1 : 0;
    }
  }
  EXPECT_GT(read, 40'000);
}

}  // namespace
}  // namespace zelvo::test
