#include "presentation/cues.h"

#include <array>
#include <cstddef>

namespace zelvo {
namespace {

struct Row {
  const char* file;
  bool waits;
};

constexpr std::array<Row, static_cast<std::size_t>(Cue::Count)> rows = {{
    {"ZELVO.WAV", true},      // Opening
    {"STARTP.WAV", true},     // NewGame
    {"no-intel.WAV", true},   // Exit
    {"nocomply.wav", false},  // TooLittleCash
    {"CHIP.WAV", true},       // BuildingPaid
    {"REVIEW.WAV", false},    // ZoningBoard
    {"CLICK.WAV", true},      // NeighbourMoved
    {"CLICK.WAV", true},      // DividendPaid
    {"PARK.WAV", true},       // Park
    {"Golf.WAV", true},       // Golf
    {"PLOPFUND.WAV", true},   // Condemned
    {"EXPLODE.WAV", false},   // Strike
    {"EXPLODE.WAV", true},    // PlaneCrash
    {"SIREN.WAV", false},     // PlaneSiren
    {"FANFARE.WAV", false},   // Casino
    {"MALL.WAV", false},      // Mall
    {"CSMART.WAV", false},    // ComputerInvests
    {"CSMART.WAV", false},    // ComputerRestaurant
    {"BEEBOP.WAV", true},     // CannotPayRepairs
    {"GOOD.WAV", false},      // GoodCard
    {"OHNO.WAV", false},      // BadCard
    {"LOAN.WAV", false},      // LoanOffer
    {"NOLOAN.WAV", false},    // LoanRefusal
    {"WEALTH.WAV", false},    // PlayerWins
    {"LOSLAFF.WAV", false},   // PlayerLoses
    {"DESPIC.WAV", true},     // WinnerLeaves
}};

const Row& RowOf(Cue cue) { return rows.at(static_cast<std::size_t>(cue)); }

}  // namespace

void PlayCue(Game& g, Cue cue) {
  // Whether the sound could be played is not looked at.
  if (g.SoundOn && !g.HasEnded()) g.platform().PlaySound(g.AppPath + CueFile(cue), CueWaits(cue));
}

std::string CueFile(Cue cue) { return RowOf(cue).file; }

bool CueWaits(Cue cue) { return RowOf(cue).waits; }

}  // namespace zelvo
