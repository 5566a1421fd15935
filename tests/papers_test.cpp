#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "faces/kept_game.h"
#include "tests/auto_player.h"
#include "tests/play.h"

namespace zelvo::test {
namespace {

std::string Read(const std::string& file) {
  std::ifstream stream(std::string(ZELVO_SOURCE_DIR) + "/" + file, std::ios::binary);
  return {std::istreambuf_iterator<char>(stream), {}};
}

/// The examples of a document: what stands between lines of three backticks.
std::vector<std::string> Examples(const std::string& file) {
  const std::string fence = "```";
  const std::string text = Read(file);
  std::vector<std::string> examples;
  for (std::size_t end = 0;;) {
    const auto begin = text.find(fence, end);
    if (begin == std::string::npos) return examples;
    const auto first = text.find('\n', begin) + 1;
    end = text.find(fence, first);
    examples.push_back(text.substr(first, end - first));
    end += fence.size();
  }
}

TEST(Papers, AllNameTheSameVersion) {
  const std::string version = ZELVO_VERSION;
  const struct {
    const char* file;
    std::string text;
  } papers[] = {
      {"packaging/changelog", "zelvo (" + version + ") "},
      {"packaging/zelvo.6", "\"Zelvo " + version + "\""},
      {"packaging/zelvo-headless.6", "\"Zelvo " + version + "\""},
      {"packaging/org.zelvo.Zelvo.metainfo.xml", "<release version=\"" + version + "\""},
  };
  for (const auto& [file, text] : papers) {
    EXPECT_NE(Read(file).find(text), std::string::npos) << file << " lacks " << text;
  }
  AutoPlayer player;
  Game& game = player.game();
  game.Start();
  EXPECT_NE(game.GST->Label2.Caption.find("Version " + version + " "), std::string::npos);
  bool asked = false;
  player.inModal = [&](Game& g) {
    if (g.InputWindow() == &g.ABT.Untouched()) {
      EXPECT_NE(g.ABT->Label1.Caption.find("Version " + version), std::string::npos);
      asked = true;
    }
    if (asked) return Dismiss(g);
    g.Click(g.ICF->CMDABOUT);
  };
  game.Click(game.GST->CMDSET);
  EXPECT_TRUE(asked);
}

TEST(Papers, ExamplesOfGamesFit) {
  int games = 0;
  for (const std::string& example : Examples("docs/game-file.md")) {
    EXPECT_EQ(ReadKeptGame(example).error, "") << example;
    ++games;
  }
  EXPECT_GT(games, 1);
}

TEST(Papers, ExamplesOfScriptsCanBePlayed) {
  int scripts = 0;
  for (const std::string& example : Examples("docs/scripted-play.md")) {
    if (!example.starts_with("click")) continue;
    ++scripts;
    for (const Json& line : Play(example)) EXPECT_FALSE(line.contains("error")) << line.dump();
  }
  EXPECT_GT(scripts, 0);
}

}  // namespace
}  // namespace zelvo::test
