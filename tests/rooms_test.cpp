#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <map>
#include <set>
#include <string>

namespace {

using Rooms = std::set<std::string>;

/// Whose headers the files of each room may include, besides its own.
const std::map<std::string, Rooms> mayInclude = [] {
  const Rooms rules = {"surface",  "surface/windows", "game",    "player",
                       "computer", "events",          "economy", "presentation"};
  const Rooms forFaces = {"surface", "surface/windows", "game", "journal", "faces"};
  Rooms forPage = forFaces;
  // It plays scripts as well, and fetches the cues ahead.
  forPage.insert({"faces/scripted", "presentation"});
  return std::map<std::string, Rooms>{{"surface", {}},
                                      {"surface/windows", {"surface"}},
                                      {"game", rules},
                                      {"player", rules},
                                      {"computer", rules},
                                      {"events", rules},
                                      {"economy", rules},
                                      {"presentation", rules},
                                      {"journal", {"surface"}},
                                      {"faces", {"surface", "game", "journal"}},
                                      {"faces/scripted", forFaces},
                                      {"faces/headless", {"faces", "faces/scripted"}},
                                      {"faces/desktop", forFaces},
                                      {"faces/browser", forPage}};
}();

/// The rooms whose headers a file includes.
Rooms IncludedRooms(const std::filesystem::path& file) {
  Rooms rooms;
  std::ifstream stream(file);
  for (std::string line; std::getline(stream, line);) {
    constexpr std::string_view directive = "#include \"";
    if (line.starts_with(directive)) {
      rooms.insert(line.substr(directive.size(), line.rfind('/') - directive.size()));
    }
  }
  return rooms;
}

/// A rule may use another room's rules, but no face; a face never reaches past the game to its
/// rules.
TEST(Rooms, IncludeWhatTheyMay) {
  const std::filesystem::path source(ZELVO_SOURCE_DIR);
  for (const auto& [room, others] : mayInclude) {
    int files = 0;
    for (const auto& entry : std::filesystem::directory_iterator(source / room)) {
      const std::string kind = entry.path().extension().string();
      if (kind != ".cpp" && kind != ".h") continue;
      ++files;
      for (const std::string& included : IncludedRooms(entry.path())) {
        EXPECT_TRUE(included == room || others.contains(included))
            << entry.path().filename() << " in " << room << " includes from " << included;
      }
    }
    EXPECT_GT(files, 0) << room;
  }
}

}  // namespace
