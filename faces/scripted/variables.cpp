#include "faces/scripted/variables.h"

#include <charconv>

#include "faces/scripted/json_text.h"

namespace zelvo {
namespace {

template <auto member>
Slot Of(Game& game, int /*index*/) {
  return &(game.*member);
}

template <auto member>
Slot EntryOf(Game& game, int index) {
  return &(game.*member)[index];
}

Slot GeneratorSlot(Game& game, int /*index*/) { return &game.Generator.state; }

std::string AsJson(const Slot& slot, std::string (*money)(Currency)) {
  if (const auto* number = std::get_if<int*>(&slot)) return std::to_string(**number);
  if (const auto* flag = std::get_if<bool*>(&slot)) return Flag(**flag);
  if (const auto* amount = std::get_if<Currency*>(&slot)) return money(**amount);
  if (const auto* text = std::get_if<std::string*>(&slot)) return Quoted(**text);
  return std::to_string(*std::get<std::uint32_t*>(slot));
}

std::string MoneyString(Currency amount) { return Quoted(FullDecimal(amount)); }

}  // namespace

const std::vector<SharedVariable>& SharedVariables() {
  static const std::vector<SharedVariable> variables = {
      {"SkillLevel", Of<&Game::SkillLevel>, 0, 3},
      {"SoundOn", Of<&Game::SoundOn>},
      {"BankPlays", Of<&Game::BankPlays>},
      {"AppPath", Of<&Game::AppPath>},
      {"CrLf", Of<&Game::CrLf>},
      {"SpreadDue", Of<&Game::SpreadDue>},
      {"Turn", Of<&Game::Turn>},
      {"TurnNo", Of<&Game::TurnNo>},
      {"YearTurn", Of<&Game::YearTurn>},
      {"ChanceWait", Of<&Game::ChanceWait>},
      {"UseChance", Of<&Game::UseChance>},
      {"CurLot", Of<&Game::CurLot>, 0, lotCount - 1},
      {"CurTag", Of<&Game::CurTag>},
      {"PlayerHotels", Of<&Game::PlayerHotels>},
      {"CompHotels", Of<&Game::CompHotels>},
      {"CompBareLots", Of<&Game::CompBareLots>},
      {"OpenLots", Of<&Game::OpenLots>},
      {"ParkCount", Of<&Game::ParkCount>},
      {"GolfCount", Of<&Game::GolfCount>},
      {"CondemnedLots", Of<&Game::CondemnedLots>},
      {"RestCount", Of<&Game::RestCount>},
      {"PlayerMalls", Of<&Game::PlayerMalls>},
      {"LastCondemned", Of<&Game::LastCondemned>},
      {"LastGolf", Of<&Game::LastGolf>},
      {"LastPark", Of<&Game::LastPark>},
      {"StrikeMeter", Of<&Game::StrikeMeter>},
      {"CasinoMeter", Of<&Game::CasinoMeter>},
      {"PlaneMeter", Of<&Game::PlaneMeter>},
      {"MallNext", Of<&Game::MallNext>},
      {"FireFlag", Of<&Game::FireFlag>},
      {"RepairDue", Of<&Game::RepairDue>},
      {"FastBlink", Of<&Game::FastBlink>},
      {"CancelledBuilds", Of<&Game::CancelledBuilds>},
      {"Ruling", Of<&Game::Ruling>},
      {"Refused", Of<&Game::Refused>},
      {"ValueSign", Of<&Game::ValueSign>},
      {"AssessCount", Of<&Game::AssessCount>},
      {"AssessRate", Of<&Game::AssessRate>},
      {"BankCash", Of<&Game::BankCash>},
      {"BankDeposit", Of<&Game::BankDeposit>},
      {"PlayerLoan", Of<&Game::PlayerLoan>},
      {"PlayerWorth", Of<&Game::PlayerWorth>},
      {"CompWorth", Of<&Game::CompWorth>},
      {"BuildCost", Of<&Game::BuildCost>},
      {"WorkWorth", Of<&Game::WorkWorth>},
      {"Tally", Of<&Game::Tally>},
      {"LoanAmount", Of<&Game::LoanAmount>},
      {"CardAmount", Of<&Game::CardAmount>},
      {"Word", Of<&Game::Word>},
      {"Work", Of<&Game::Work>, -32'768, 32'767},
      {"Idx", Of<&Game::Idx>},
      {"Money", Of<&Game::Money>},
      {"Delta", Of<&Game::Delta>},
      // The draw never counts beyond 32,000, and above it would hardly ever find a lot.
      {"FreshLot", Of<&Game::FreshLot>, 0, 32'000},
      {"LotValue", EntryOf<&Game::LotValue>, 0, 0, 0, lotCount - 1},
      {"LotInsured", EntryOf<&Game::LotInsured>, 0, 0, 0, lotCount - 1},
      {"BrandSold", EntryOf<&Game::BrandSold>, -1'000'000'000, 1'000'000'000, 1, 6},
      {"OwnerTags", EntryOf<&Game::OwnerTags>, 0, 0, 1, 7},
      {"Generator", GeneratorSlot, 0, RandomGenerator::modulus - 1},
  };
  return variables;
}

std::optional<IndexedName> SplitIndex(std::string_view text) {
  const auto open = text.find('(');
  if (open == std::string_view::npos) return IndexedName{text};
  IndexedName split{text.substr(0, open)};
  const char* first = text.data() + open + 1;
  const char* end = text.data() + text.size();
  const auto [stop, error] = std::from_chars(first, end, split.index);
  if (error != std::errc() || stop + 1 != end || *stop != ')') return std::nullopt;
  // A sign or a leading zero would be a second name for the same thing.
  if (*first == '-' || (*first == '0' && stop != first + 1)) return std::nullopt;
  return split;
}

std::optional<VariableEntry> FindVariable(std::string_view name) {
  const auto split = SplitIndex(name);
  if (!split) return std::nullopt;
  for (const SharedVariable& variable : SharedVariables()) {
    if (variable.name != split->name) continue;
    const bool indexed = split->index != Control::noIndex;
    if (indexed != variable.IsArray()) return std::nullopt;
    if (indexed && (split->index < variable.first || split->index > variable.last)) {
      return std::nullopt;
    }
    return VariableEntry{&variable, split->index};
  }
  return std::nullopt;
}

std::string ReadVariable(Game& game, const VariableEntry& entry) {
  return AsJson(entry.variable->slot(game, entry.index), Decimal);
}

std::string WriteVariable(Game& game, const VariableEntry& entry, std::string_view text) {
  const Slot slot = entry.variable->slot(game, entry.index);
  if (const auto* flag = std::get_if<bool*>(&slot)) return ReadFlag(text, **flag);
  if (const auto* amount = std::get_if<Currency*>(&slot)) return ReadDecimal(text, **amount);
  if (const auto* string = std::get_if<std::string*>(&slot)) return ReadQuoted(text, **string);
  long long number = 0;
  std::string error = ReadWhole(text, entry.variable->lowest, entry.variable->highest, number);
  if (!error.empty()) return error;
  if (const auto* whole = std::get_if<int*>(&slot)) {
    **whole = static_cast<int>(number);
  } else {
    *std::get<std::uint32_t*>(slot) = static_cast<std::uint32_t>(number);
  }
  return "";
}

std::string VariablesAsJson(Game& game) {
  std::string json;
  for (const SharedVariable& variable : SharedVariables()) {
    json.append(json.empty() ? "{" : ",").append(Quoted(variable.name)).append(":");
    if (!variable.IsArray()) {
      json += AsJson(variable.slot(game, Control::noIndex), MoneyString);
      continue;
    }
    for (int index = variable.first; index <= variable.last; ++index) {
      json.append(index == variable.first ? "[" : ",")
          .append(AsJson(variable.slot(game, index), MoneyString));
    }
    json += ']';
  }
  return json + '}';
}

}  // namespace zelvo
