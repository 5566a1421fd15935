#include "tests/play.h"

#include <gtest/gtest.h>

#include <sstream>

#include "headless/scripted_game.h"

namespace zelvo::test {

std::vector<Json> Play(const std::string& script) {
  std::istringstream commands(script);
  std::ostringstream output;
  ScriptedGame(commands, output).Run();
  std::vector<Json> lines;
  std::istringstream read(output.str());
  for (std::string line; std::getline(read, line);) lines.push_back(Json::parse(line));
  return lines;
}

std::vector<Json> Values(const std::string& script) {
  std::vector<Json> values;
  // At noon to the second every event is a fire, and there is nothing yet to burn.
  for (const Json& line : Play("click GST.CMDSTART\n" + script)) {
    EXPECT_FALSE(line.contains("error")) << line.dump();
    if (line.contains("value")) values.push_back(line["value"]);
  }
  return values;
}

std::vector<std::string> Texts(const std::string& script) {
  std::vector<std::string> texts;
  for (const Json& value : Values(script)) {
    texts.push_back(value.is_string() ? value.get<std::string>() : value.dump());
  }
  return texts;
}

std::string Times(int count, const std::string& command) {
  std::string script;
  for (int i = 0; i < count; ++i) script += command + "\n";
  return script;
}

}  // namespace zelvo::test
