#pragma once

#include <array>

#include "surface/surface.h"
#include "surface/windows/legend.h"
#include "surface/windows/picture.h"

namespace zelvo {

constexpr int lotCount = 100;
constexpr int boardWidth = 10;

/// The start window.
struct GSTWindow : Window {
  explicit GSTWindow(Surface& surface);
  Control Panel3D1, Panel3D2;
  Control Image2, Label1, Label2;
  Control CMDSTART, CMDSET, CMDEXIT;
};

/// The board. `LITE` is numbered from 1 and `Label6` has only even numbers; the entries between
/// are on no window.
struct GFMWindow : Window {
  explicit GFMWindow(Surface& surface);
  Control Panel3D1, Panel3D2, Panel3D3, Panel3D4;
  std::array<Control, 13> Label7;
  std::array<Control, 5> Label6;
  std::array<Control, lotCount> Image1;
  Control Image2, Image3;
  Control Label2, PUP, PCredit, PNW, PNOH;
  Control Label3, CUP, CCredit, CNW, CNOH;
  std::array<Control, 2> Label4, Label5, NHLabel;
  Control LSHOW, PSHOW;
  std::array<Control, 7> LITE;
  Control SUPER, THRIFTY, QUALITY, BEST, RAMADA, HILTON, Rest;
  Control BUILDIT, CMDBUY, CMDBUILD, CMDSELL, CMDSHOT, CMDGO;
  Control Label1, Label10, Label8, Label9, BANKLABEL, CMDHELP, CMDEXIT;
  Control Timer1;

 private:
  void PlaceBoard();
  void PlaceLedgers();
  void PlaceActions();
  void PlaceBottomStrip();
};

/// Setup and legend; the owner of the icons that the board takes its pictures from.
struct ICFWindow : Window {
  explicit ICFWindow(Surface& surface);
  Control Panel3D1, Panel3D2;
#define ICON(name, tag, meaning, hover) Control name;
  ZELVO_LEGEND(ICON)
#undef ICON
  std::array<Control, 4> OPT1;
  Control CKCHANCE, CKBANK;
  Control CMDSOUND, CMDEXP, CMDABOUT, cmdexit;
  Control Label1;
};

/// Assessment and tax time.
struct TTWindow : Window {
  explicit TTWindow(Surface& surface);
  Control Image1, Label1, Label2, XSHOW;
};

/// The winner.
struct WINXWindow : Window {
  explicit WINXWindow(Surface& surface);
  Control Label1, Label2, Label3, CMDEXIT;
};

/// The explanation of the game.
struct HHWindow : Window {
  explicit HHWindow(Surface& surface);
  Control Panel3D1, Text1, CMDEXIT;
};

/// Build and insurance. `L1` has the number 4 alone.
struct HSWindow : Window {
  explicit HSWindow(Surface& surface);
  std::array<Control, 6> Label1;
  std::array<Control, 5> L1;
  std::array<Control, 2> CMDAN1;
  Control CMDCANCEL;
};

/// Repairs.
struct SVWindow : Window {
  explicit SVWindow(Surface& surface);
  Control Label1, Image1, CMDOK;
};

/// The zoning board. Its close box is the only way out of it.
struct RBWindow : Window {
  explicit RBWindow(Surface& surface);
  Control Label1, MAN, Label2;
};

/// The mall offer.
struct MLWindow : Window {
  explicit MLWindow(Surface& surface);
  Control Label1, Image1, Label2;
  std::array<Control, 2> CMD1;
};

/// Chance cards.
struct CHNWindow : Window {
  explicit CHNWindow(Surface& surface);
  Control Label1, Label2;
  std::array<Control, 3> Image1;
  Control CMDOK;
};

/// The bank's counter.
struct BKWindow : Window {
  explicit BKWindow(Surface& surface);
  Control ImageN, Label1, Label2;
  std::array<Control, 5> Image1;
  std::array<Control, 5> OPT1;
  Control CMDOK, CMDCANCEL, Timer1;
};

/// About the game.
struct ABTWindow : Window {
  explicit ABTWindow(Surface& surface);
  Control Image1, Label1;
};

/// The thirteen windows under the names that the rules use. `Game` derives from it, so that a rule
/// reads `g.GFM->PCredit.Caption`.
class GameWindows : public Surface {
 public:
  using Surface::Surface;

  WindowSlot<GSTWindow> GST{*this};
  WindowSlot<GFMWindow> GFM{*this};
  WindowSlot<ICFWindow> ICF{*this};
  WindowSlot<TTWindow> TT{*this};
  WindowSlot<WINXWindow> WINX{*this};
  WindowSlot<HHWindow> HH{*this};
  WindowSlot<HSWindow> HS{*this};
  WindowSlot<SVWindow> SV{*this};
  WindowSlot<RBWindow> RB{*this};
  WindowSlot<MLWindow> ML{*this};
  WindowSlot<CHNWindow> CHN{*this};
  WindowSlot<BKWindow> BK{*this};
  WindowSlot<ABTWindow> ABT{*this};

  /// Loads the start window, which shows itself and plays the opening.
  void Start() override { Load(GST); }
  std::string_view MeaningOf(PictureId picture) const override { return PictureMeaning(picture); }
};

}  // namespace zelvo
