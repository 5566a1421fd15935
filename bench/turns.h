#pragma once

#include "game/lots.h"
#include "tests/auto_player.h"

/// What the turns are that benchmarks play.
namespace zelvo {

/// Starts a game afresh; a game that was won stands at the start window.
inline void StartGame(Game& g) {
  if (!g.GST.Untouched().IsLoaded()) g.Start();
  g.Click(g.GST->CMDSTART);
}

inline void EndTurn(Game& g) {
  if (!g.GFM.Untouched().IsShown()) StartGame(g);
  g.Click(g.GFM->CMDGO);
}

/// Buys the first lot for sale and builds on it, insured.
inline void BuyAndBuild(Game& g) {
  for (int lot = 0; lot < lotCount; ++lot) {
    const auto tag = LotTag(g, lot);
    if (tag != "O" && tag != "D") continue;
    g.Click(g.GFM->Image1[lot]);
    g.Click(g.GFM->CMDBUY);
    g.Click(g.GFM->CMDBUILD);
    g.Click(g.GFM->QUALITY);
    g.Click(g.GFM->BUILDIT);
    return;
  }
}

inline void Insure(Game& g) {
  if (g.HS.Untouched().IsShown() && g.HS->CMDAN1[0].Visible) {
    g.Click(g.HS->CMDAN1[0]);
  } else {
    Dismiss(g);
  }
}

}  // namespace zelvo
