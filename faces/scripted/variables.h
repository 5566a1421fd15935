#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "game/game.h"

namespace zelvo {

/// Where a shared variable, or an entry of a shared array, is kept.
using Slot = std::variant<int*, bool*, Currency*, std::string*, std::uint32_t*>;

/// A shared variable as scripts know it. An array goes from `first` to `last`.
struct SharedVariable {
  std::string_view name;
  Slot (*slot)(Game&, int);
  long long lowest = -1'000'000'000;  ///< of a whole number; leaves counters room to count
  long long highest = 1'000'000'000;
  int first = 0;
  int last = Control::noIndex;

  bool IsArray() const { return last != Control::noIndex; }
};

/// All shared variables.
const std::vector<SharedVariable>& SharedVariables();

/// A variable, or an entry of an array, as in "CurLot" or "LotValue(37)".
struct VariableEntry {
  const SharedVariable* variable;
  int index;
};
std::optional<VariableEntry> FindVariable(std::string_view name);

/// The value as JSON, money as a number.
std::string ReadVariable(Game& game, const VariableEntry& entry);
/// Sets a variable from a script's text. Returns why not, in plain words; empty if it was set.
std::string WriteVariable(Game& game, const VariableEntry& entry, std::string_view text);
/// All variables as a JSON object, money as strings with four decimals.
std::string VariablesAsJson(Game& game);

/// Splits "Name(12)" into name and index, which is `Control::noIndex` for a plain name; nothing if
/// it is neither.
struct IndexedName {
  std::string_view name;
  int index = Control::noIndex;
};
std::optional<IndexedName> SplitIndex(std::string_view text);

}  // namespace zelvo
