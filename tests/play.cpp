#include "tests/play.h"

#include <gtest/gtest.h>

#include <clocale>
#include <sstream>

namespace zelvo::test {
namespace {

/// The rules run in the player's language, as in the desktop program.
[[maybe_unused]] const char* const language = std::setlocale(LC_ALL, "");

}  // namespace

std::vector<Json> Play(const std::string& script) { return Scripted(script).Lines(); }

std::string Told(const std::string& script) {
  std::string told;
  // At noon to the second every event is a fire, and there is nothing yet to burn.
  for (const Json& line : Play("click GST.CMDSTART\n" + script)) {
    EXPECT_FALSE(line.contains("error")) << line.dump();
    if (line.contains("value")) told += (told.empty() ? "" : " | ") + line["value"].text();
  }
  return told;
}

Json Last(const std::string& script) { return Play("click GST.CMDSTART\n" + script).back(); }

std::string Get(const std::string& names) {
  std::istringstream words(names);
  std::string script;
  for (std::string name; words >> name;) script.append("get ").append(name).append("\n");
  return script;
}

std::vector<std::string> Pieces(const std::string& table, char separator) {
  std::vector<std::string> pieces;
  std::istringstream rest(table);
  for (std::string piece; std::getline(rest, piece, separator);) {
    const auto first = piece.find_first_not_of(" \n");
    const auto last = piece.find_last_not_of(" \n");
    if (first != std::string::npos) pieces.push_back(piece.substr(first, last - first + 1));
  }
  return pieces;
}

Scripted::Scripted(const std::string& script)
    : ScriptStreams{std::istringstream(script), {}}, StreamGame(commands, output) {}

std::vector<Json> Scripted::Lines() {
  Run();
  std::vector<Json> lines;
  for (const std::string& line : Pieces(output.str(), '\n')) lines.push_back(Json::parse(line));
  return lines;
}

}  // namespace zelvo::test
