#include <benchmark/benchmark.h>

#include <sstream>
#include <string>

#include "bench/turns.h"
#include "events/board_event.h"
#include "faces/headless/stream_game.h"
#include "game/lots.h"
#include "journal/journal.h"
#include "tests/auto_player.h"

namespace zelvo {
namespace {

void IdleTurns(benchmark::State& state) {
  AutoPlayer player;
  player.inModal = Dismiss;
  StartGame(player.game());
  for ([[maybe_unused]] auto _ : state) EndTurn(player.game());
  state.SetItemsProcessed(state.iterations());
}
BENCHMARK(IdleTurns);

void BuildingTurns(benchmark::State& state) {
  AutoPlayer player;
  player.inModal = Insure;
  StartGame(player.game());
  for ([[maybe_unused]] auto _ : state) {
    BuyAndBuild(player.game());
    EndTurn(player.game());
  }
  state.SetItemsProcessed(state.iterations());
}
BENCHMARK(BuildingTurns);

/// The same with a journal between the game and its machine.
class RecordedPlayer : public VirtualPlatform {
 public:
  RecordedPlayer() { journal_.Attach(game_); }
  Game& game() { return game_; }
  Answer MessageBox(const std::string& /*text*/, MessageStyle style,
                    const std::string& /*title*/) override {
    return style == MessageStyle::YesNoQuestion ? Answer::No : Answer::Ok;
  }

 private:
  void WaitForPlayer() override { Insure(game_); }
  Surface& surface() override { return game_; }

  Journal journal_{*this};
  Game game_{journal_};
};

void RecordedBuildingTurns(benchmark::State& state) {
  RecordedPlayer player;
  StartGame(player.game());
  for ([[maybe_unused]] auto _ : state) {
    BuyAndBuild(player.game());
    EndTurn(player.game());
  }
  state.SetItemsProcessed(state.iterations());
}
BENCHMARK(RecordedBuildingTurns);

/// Board events one after the other, on a board that is laid out anew whenever `fill` says what
/// stands on its lots.
void BoardEvents(benchmark::State& state, const char* tag, Member<Control, ICFWindow> icon) {
  AutoPlayer player;
  player.inModal = Dismiss;
  Game& g = player.game();
  StartGame(g);
  for ([[maybe_unused]] auto _ : state) {
    for (Control& lot : g.GFM->Image1) {
      lot.Picture = (g.ICF->*icon).Picture;
      lot.Tag = tag;
    }
    BoardEvent(g);
  }
  state.SetItemsProcessed(state.iterations());
}
BENCHMARK_CAPTURE(BoardEvents, EmptyBoard, "U", &ICFWindow::LUND);
BENCHMARK_CAPTURE(BoardEvents, FullBoard, "CHH", &ICFWindow::HILTON);

void ScriptLines(benchmark::State& state) {
  constexpr int commands = 4000;
  std::string script = "click GST.CMDSTART\n";
  for (int i = 0; i < commands / 4; ++i) {
    script += "click GFM.Image1(" + std::to_string(i % lotCount) +
              ")\nget GFM.PSHOW.Caption\nhover GFM.CMDGO\nget LotValue(7)\n";
  }
  for ([[maybe_unused]] auto _ : state) {
    std::istringstream input(script);
    std::ostringstream output;
    StreamGame(input, output).Run();
    benchmark::DoNotOptimize(output.str().size());
  }
  state.SetItemsProcessed(state.iterations() * commands);
}
BENCHMARK(ScriptLines);

}  // namespace
}  // namespace zelvo
