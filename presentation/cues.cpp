#include "presentation/cues.h"

#include <array>
#include <cstddef>

#include "surface/in_order.h"

namespace zelvo {
namespace {

struct Row {
  Cue cue;
  const char* file;
  bool waits;
};

constexpr std::array<Row, static_cast<std::size_t>(Cue::Count)> rows = {{
    {Cue::Opening, "ZELVO.WAV", true},
    {Cue::NewGame, "STARTP.WAV", true},
    {Cue::Exit, "no-intel.WAV", true},
    {Cue::TooLittleCash, "nocomply.wav", false},
    {Cue::BuildingPaid, "CHIP.WAV", true},
    {Cue::ZoningBoard, "REVIEW.WAV", false},
    {Cue::NeighbourMoved, "CLICK.WAV", true},
    {Cue::DividendPaid, "CLICK.WAV", true},
    {Cue::Park, "PARK.WAV", true},
    {Cue::Golf, "Golf.WAV", true},
    {Cue::Condemned, "PLOPFUND.WAV", true},
    {Cue::Strike, "EXPLODE.WAV", false},
    {Cue::PlaneCrash, "EXPLODE.WAV", true},
    {Cue::PlaneSiren, "SIREN.WAV", false},
    {Cue::Casino, "FANFARE.WAV", false},
    {Cue::Mall, "MALL.WAV", false},
    {Cue::ComputerInvests, "CSMART.WAV", false},
    {Cue::ComputerRestaurant, "CSMART.WAV", false},
    {Cue::CannotPayRepairs, "BEEBOP.WAV", true},
    {Cue::GoodCard, "GOOD.WAV", false},
    {Cue::BadCard, "OHNO.WAV", false},
    {Cue::LoanOffer, "LOAN.WAV", false},
    {Cue::LoanRefusal, "NOLOAN.WAV", false},
    {Cue::PlayerWins, "WEALTH.WAV", false},
    {Cue::PlayerLoses, "LOSLAFF.WAV", false},
    {Cue::WinnerLeaves, "DESPIC.WAV", true},
}};
static_assert(InOrder(rows, &Row::cue));

const Row& RowOf(Cue cue) { return rows.at(static_cast<std::size_t>(cue)); }

}  // namespace

void PlayCue(Game& g, Cue cue) {
  // Whether the sound could be played is not looked at.
  if (g.SoundOn && !g.HasEnded()) g.platform().PlaySound(g.AppPath + CueFile(cue), CueWaits(cue));
}

std::string CueFile(Cue cue) { return RowOf(cue).file; }

bool CueWaits(Cue cue) { return RowOf(cue).waits; }

}  // namespace zelvo
