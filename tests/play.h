#pragma once

#include <nlohmann/json.hpp>
#include <string>
#include <vector>

namespace zelvo::test {

using Json = nlohmann::json;

/// Plays a script through the scripted face and gives its lines.
std::vector<Json> Play(const std::string& script);

/// Starts a game at a quiet second of the clock, with every opening event passed over lots that it
/// leaves as they were, then plays the script. Gives the values of its `get` commands, in order; a
/// command with an error fails the test.
std::vector<Json> Values(const std::string& script);

/// The values as strings, for tables: "$1,000" stays as it is, a number as it is printed.
std::vector<std::string> Texts(const std::string& script);

/// The same command a number of times.
std::string Times(int count, const std::string& command);

}  // namespace zelvo::test
