// The map of the program: which handler each event of each control and window raises.

#include <string_view>
#include <type_traits>

#include "economy/bank.h"
#include "economy/chance.h"
#include "economy/tax_time.h"
#include "events/mall.h"
#include "events/repairs.h"
#include "game/game.h"
#include "game/start.h"
#include "game/turn.h"
#include "game/worth.h"
#include "player/build.h"
#include "player/inspect.h"
#include "player/trade.h"
#include "player/zoning.h"
#include "presentation/blink.h"
#include "presentation/hover.h"
#include "presentation/setup.h"

namespace zelvo {
namespace {

/// A handler with what it asks for: nothing, its index, its new state or the control itself.
template <auto handler>
void On(Game& g, Control& control) {
  using Handler = decltype(handler);
  if constexpr (std::is_same_v<Handler, void (*)(Game&)>) {
    handler(g);
  } else if constexpr (std::is_same_v<Handler, void (*)(Game&, int)>) {
    handler(g, control.index());
  } else if constexpr (std::is_same_v<Handler, void (*)(Game&, bool)>) {
    handler(g, control.Value());
  } else {
    handler(g, control);
  }
}

constexpr Handlers::Function none = nullptr;
constexpr bool dropsWhileBusy = true;

struct ControlRow {
  std::string_view window;
  std::string_view control;  // an array's name stands for all its controls
  Handlers::Function click = none;
  Handlers::Function mouseMove = none;
  Handlers::Function timer = none;
  bool dropsClicksWhileBusy = false;
};

constexpr auto classIcon = On<GFM::ClassIcon_Click>;

constexpr ControlRow controlRows[] = {
    // window, control, click, mouse move, timer
    {"GST", "CMDSTART", On<GST::CMDSTART_Click>},
    {"GST", "CMDSET", On<GST::CMDSET_Click>},
    {"GST", "CMDEXIT", On<GST::CMDEXIT_Click>},

    {"GFM", "Image1", On<GFM::Image1_Click>, On<GFM::Image1_MouseMove>, none, dropsWhileBusy},
    {"GFM", "SUPER", classIcon, none, none, dropsWhileBusy},
    {"GFM", "THRIFTY", classIcon, none, none, dropsWhileBusy},
    {"GFM", "QUALITY", classIcon, none, none, dropsWhileBusy},
    {"GFM", "BEST", classIcon, none, none, dropsWhileBusy},
    {"GFM", "RAMADA", classIcon, none, none, dropsWhileBusy},
    {"GFM", "HILTON", classIcon, none, none, dropsWhileBusy},
    {"GFM", "Rest", classIcon, none, none, dropsWhileBusy},
    {"GFM", "CMDBUY", On<GFM::CMDBUY_Click>, none, none, dropsWhileBusy},
    {"GFM", "CMDSELL", On<GFM::CMDSELL_Click>, none, none, dropsWhileBusy},
    {"GFM", "CMDSHOT", On<GFM::CMDSHOT_Click>, none, none, dropsWhileBusy},
    {"GFM", "CMDBUILD", On<GFM::CMDBUILD_Click>, none, none, dropsWhileBusy},
    {"GFM", "BUILDIT", On<GFM::BUILDIT_Click>, none, none, dropsWhileBusy},
    {"GFM", "CMDGO", On<GFM::CMDGO_Click>},
    {"GFM", "CMDHELP", On<GFM::CMDHELP_Click>},
    {"GFM", "CMDEXIT", On<GFM::CMDEXIT_Click>},
    {"GFM", "Label1", On<GFM::Label1_Click>},
    {"GFM", "Label8", On<GFM::Label8_Click>},
    {"GFM", "BANKLABEL", On<GFM::BANKLABEL_Click>},
    {"GFM", "Timer1", none, none, On<GFM::Timer1_Timer>},

    {"ICF", "OPT1", On<ICF::OPT1_Click>, On<ICF::OPT1_MouseMove>},
    {"ICF", "CKCHANCE", On<ICF::CKCHANCE_Click>},
    {"ICF", "CKBANK", On<ICF::CKBANK_Click>},
    {"ICF", "CMDSOUND", On<ICF::CMDSOUND_Click>},
    {"ICF", "CMDEXP", On<ICF::CMDEXP_Click>},
    {"ICF", "CMDABOUT", On<ICF::CMDABOUT_Click>},
    {"ICF", "cmdexit", On<ICF::CMDEXIT_Click>},

    {"WINX", "CMDEXIT", On<WINX::CMDEXIT_Click>},
    {"HH", "CMDEXIT", On<HH::CMDEXIT_Click>},
    {"HS", "CMDAN1", On<HS::CMDAN1_Click>},
    {"HS", "CMDCANCEL", On<HS::CMDCANCEL_Click>},
    {"SV", "CMDOK", On<SV::CMDOK_Click>},
    {"ML", "CMD1", On<ML::CMD1_Click>},
    {"CHN", "Image1", On<CHN::Image1_Click>},
    {"CHN", "CMDOK", On<CHN::CMDOK_Click>},
    {"BK", "OPT1", On<BK::OPT1_Click>},
    {"BK", "CMDOK", On<BK::CMDOK_Click>},
    {"BK", "CMDCANCEL", On<BK::CMDCANCEL_Click>},
    {"BK", "Timer1", none, none, On<BK::Timer1_Timer>},
    {"ABT", "Image1", On<ABT::Form_Click>},
    {"ABT", "Label1", On<ABT::Form_Click>},
};

struct WindowRow {
  std::string_view window;
  WindowHandlers handlers;
  Handlers::Function hover = none;  // the mouse moves over a control that says something then
};

constexpr WindowRow windowRows[] = {
    {"GST",
     {.load = GST::Form_Load, .queryUnload = GST::Form_QueryUnload, .unload = GST::Form_Unload}},
    {"GFM",
     {.activate = GFM::Form_Activate,
      .resize = GFM::Form_Resize,
      .queryUnload = GFM::Form_QueryUnload,
      .unload = GFM::Form_Unload},
     On<GFM::Control_MouseMove>},
    {"ICF",
     {.load = ICF::Form_Load, .activate = ICF::Form_Activate, .mouseMove = ICF::Form_MouseMove},
     On<ICF::Icon_MouseMove>},
    {"TT", {.activate = TT::Form_Activate}},
    {"HH", {.load = HH::Form_Load}},
    {"HS", {.activate = HS::Form_Activate}},
    {"SV", {.activate = SV::Form_Activate}},
    {"RB", {.activate = RB::Form_Activate}},
    {"ML", {.activate = ML::Form_Activate}},
    {"CHN", {.activate = CHN::Form_Activate}},
    {"BK", {.activate = BK::Form_Activate}},
    {"ABT", {.click = ABT::Form_Click}},
};

}  // namespace

Game::Game(Platform& platform) : GameWindows(platform) {
  for (const ControlRow& row : controlRows) {
    for (Control* control : FindWindow(row.window)->controls()) {
      if (control->name() != row.control) continue;
      control->handlers = {row.click, row.mouseMove, row.timer, row.dropsClicksWhileBusy};
    }
  }
  for (const WindowRow& row : windowRows) {
    Window& window = *FindWindow(row.window);
    window.handlers = row.handlers;
    for (Control* control : window.controls()) {
      if (!control->design().hover.empty()) control->handlers.mouseMove = row.hover;
    }
  }
}

}  // namespace zelvo
