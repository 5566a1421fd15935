#include "surface/windows/windows.h"

#include "surface/named.h"
#include "surface/windows/looks.h"

namespace zelvo {

using namespace looks;

namespace {

constexpr Group legendGroup = {"Legend", true};
constexpr Group levelGroup = {"Skill level", true};
constexpr Group loanGroup = {"Loan", true};
constexpr Group cardGroup = {"Chance cards", true};

constexpr int afterOptions = 1;

constexpr MovedPart tallStart[] = {
    {{546, 480, 8412, 3000}, {250, 250, 5900, 2104}},     // picture
    {{546, 3610, 8412, 940}, {250, 2650, 5900, 900}},     // texts
    {{1752, 4740, 6000, 1400}, {250, 4200, 5900, 1800}},  // buttons
    {{200, 180, 9104, 6396}, {100, 100, 6200, 6100}},     // their panel
};

/// Levels and boxes to tick are as high as a finger wants them.
constexpr MovedPart lowSetup[] = {{{4884, 310, 2150, 2110}, {4884, 310, 2150, 2480}}};

/// The legend above the options.
constexpr MovedPart tallSetup[] = {
    {{200, 200, 4374, 2960}, {200, 200, 4374, 2960}},
    {{4774, 200, 4374, 2960}, {200, 3360, 4374, 3100}},
};

}  // namespace

GSTWindow::GSTWindow(Surface& surface)
    : Window(surface, {.name = "GST",
                       .title = "Zelvo 32",
                       .width = 9504,
                       .height = 6756,
                       .titleBar = TitleBar::Sizable,
                       .ground = night,
                       .tall = {6400, 6300, tallStart},
                       .isMain = true}) {
  Place(NAMED(Panel3D1), Kind::Panel, {200, 180, 9104, 6396}, {.look = panel});
  Place(NAMED(Image2), Kind::Image, {346, 300, 8412, 3000}, {.picture = PictureId::GST_Image2},
        &Panel3D1);
  Place(NAMED(Label1), Kind::Label, {346, 3430, 8412, 520},
        {.caption = "Buy a lot, build a hotel, own the block",
         .look = {.ink = night, .letterHeight = 360, .bold = true, .align = Align::Center}},
        &Panel3D1);
  Place(NAMED(Label2), Kind::Label, {346, 3990, 8412, 380}, {.look = centred}, &Panel3D1);
  Place(NAMED(Panel3D2), Kind::Panel, {1552, 4560, 6000, 1400}, {.look = panel}, &Panel3D1);
  constexpr Look large = {.letterHeight = 260, .bold = true, .align = Align::Center};
  Place(NAMED(CMDSTART), Kind::Button, {250, 300, 2300, 800},
        {.caption = "Start Game", .look = large}, &Panel3D2);
  Place(NAMED(CMDSET), Kind::Button, {2700, 300, 1450, 800},
        {.caption = "Setup", .look = large, .key = Key::F1}, &Panel3D2);
  Place(NAMED(CMDEXIT), Kind::Button, {4300, 300, 1450, 800}, {.caption = "Exit", .look = large},
        &Panel3D2);
}

ICFWindow::ICFWindow(Surface& surface)
    : Window(surface, {.name = "ICF",
                       .title = "Zelvo Setup options",
                       .width = 9348,
                       .height = 3360,
                       .titleBar = TitleBar::NoBorder,
                       .tall = {4774, 6660, tallSetup},
                       .low = {9348, 3360, lowSetup}}) {
  // Bare ground around the panels: over it the legend line says what to do.
  Place(NAMED(Panel3D1), Kind::Panel, {200, 200, 4374, 2960}, {.look = panel});
  Place(NAMED(Panel3D2), Kind::Panel, {4774, 200, 4374, 2960}, {.look = panel});

  struct Icon {
    NamedControl control;
    PictureId picture;
    std::string_view tag;
    std::string_view hover;
  };
  const std::array icons = {
#define ICON(name, tag, meaning, hover) Icon{NAMED(name), PictureId::ICF_##name, tag, hover},
      ZELVO_LEGEND(ICON)
#undef ICON
  };
  // Three rows: eight, eight and six.
  for (int i = 0; i < static_cast<int>(icons.size()); ++i) {
    const Box box = {110 + 525 * (i % 8), 120 + 590 * (i / 8), 480, 480};
    Place(icons[i].control, Kind::Image, box,
          {.tag = icons[i].tag,
           .picture = icons[i].picture,
           .look = {.border = Border::Line},
           .hover = icons[i].hover,
           .group = &legendGroup,
           .tabLevel = afterOptions},
          &Panel3D1);
  }
  Place(NAMED(Label1), Kind::Label, {110, 1920, 4155, 920},
        {.caption = "Move mouse over Icons",
         .look = {.ink = white, .ground = night, .letterHeight = 230, .align = Align::Center},
         .speech = Speech::News},
        &Panel3D1);

  constexpr std::array<std::string_view, 4> levels = {"Skill Level Easy", "Skill Level Normal",
                                                      "Skill Level Hard", "Skill Level Genius"};
  constexpr std::array<std::string_view, 4> tips = {"Easy to win", "Normal Chances",
                                                    "Better be Smart", "Better be Smart"};
  for (int i = 0; i < 4; ++i) {
    Place(
        ENTRY(OPT1, i), Kind::Option, {110, 110 + 340 * i, 2150, 320},
        {.caption = levels[i], .tag = tips[i], .value = i == 0, .look = text, .group = &levelGroup},
        &Panel3D2);
  }
  Place(NAMED(CKCHANCE), Kind::CheckBox, {110, 1560, 2150, 320},
        {.caption = "Use Chance cards", .value = true, .look = text}, &Panel3D2);
  Place(NAMED(CKBANK), Kind::CheckBox, {110, 1900, 2150, 320},
        {.caption = "Bank is Player also", .value = true, .look = text}, &Panel3D2);
  Place(NAMED(CMDSOUND), Kind::Button, {2260, 120, 2010, 540},
        {.caption = "Sound On", .look = button}, &Panel3D2);
  Place(NAMED(CMDEXP), Kind::Button, {2260, 720, 2010, 540},
        {.caption = "Game Explaination", .look = button}, &Panel3D2);
  Place(NAMED(CMDABOUT), Kind::Button, {2260, 1320, 2010, 540},
        {.caption = "About Box", .look = button}, &Panel3D2);
  Place(NAMED(cmdexit), Kind::Button, {2260, 2300, 2010, 540},
        {.caption = "Exit Setup", .look = button, .key = Key::Escape}, &Panel3D2);
}

TTWindow::TTWindow(Surface& surface)
    : Window(surface, {"TT", "", 4788, 2640, TitleBar::NoButtons, cream, "Assessment and taxes"}) {
  Place(NAMED(Image1), Kind::Image, {180, 240, 960, 960});
  Place(NAMED(Label1), Kind::Label, {1260, 240, 3380, 420},
        {.look = {.ink = computerRed, .letterHeight = 320, .bold = true}, .speech = Speech::News});
  Place(NAMED(Label2), Kind::Label, {1260, 720, 3380, 900}, {.look = text, .speech = Speech::News});
  Place(NAMED(XSHOW), Kind::Panel, {1794, 1800, 1200, 600},
        {.look = {.ground = face,
                  .letterHeight = 320,
                  .bold = true,
                  .align = Align::Center,
                  .border = Border::Raised}});
}

WINXWindow::WINXWindow(Surface& surface)
    : Window(surface, {"WINX", "The Winner is", 6600, 2376, TitleBar::NoButtons, night}) {
  constexpr Look golden = {.ink = gold, .letterHeight = 420, .bold = true, .align = Align::Center};
  constexpr Look plain = {.ink = white, .letterHeight = 330, .bold = true, .align = Align::Center};
  Place(NAMED(Label1), Kind::Label, {180, 180, 4920, 600},
        {.caption = "LABEL 1", .look = golden, .speech = Speech::News});
  Place(NAMED(Label2), Kind::Label, {180, 860, 4920, 560},
        {.caption = "LABEL 2", .look = plain, .speech = Speech::News});
  Place(NAMED(Label3), Kind::Label, {180, 1500, 4920, 560},
        {.caption = "LABEL 3", .look = plain, .speech = Speech::News});
  Place(NAMED(CMDEXIT), Kind::Button, {5280, 660, 1080, 1080},
        {.picture = PictureId::WINX_CMDEXIT, .words = "Close", .key = Key::Escape});
}

HHWindow::HHWindow(Surface& surface)
    : Window(surface, {"HH", "Zelvo Help", 7500, 6720, TitleBar::Fixed}) {
  Place(NAMED(Panel3D1), Kind::Panel, {90, 90, 7320, 5640}, {.look = panel});
  Place(NAMED(Text1), Kind::TextBox, {90, 90, 7140, 5460},
        {.look = {.ground = white, .letterHeight = 215, .border = Border::Sunken},
         .label = "Explanation of the game"},
        &Panel3D1);
  Place(NAMED(CMDEXIT), Kind::Button, {3270, 5820, 960, 800},
        {.picture = PictureId::HH_CMDEXIT, .words = "Close", .key = Key::Escape});
}

HSWindow::HSWindow(Surface& surface)
    : Window(surface, {"HS", "Zelvo Statistics", 3288, 4536, TitleBar::NoButtons}) {
  Place(ENTRY(Label1, 0), Kind::Label, {90, 90, 3108, 380},
        {.caption = "Statistics",
         .look = Heading(playerBlue, Align::Center),
         .speech = Speech::News});
  for (int line = 1; line <= 3; ++line) {
    Place(ENTRY(Label1, line), Kind::Label, {90, 180 + 350 * line, 3108, 330},
          {.look = centred, .speech = Speech::News});
  }
  Place(ENTRY(Label1, 5), Kind::Label, {90, 1600, 3108, 360},
        {.look = {.letterHeight = 230, .bold = true, .align = Align::Center},
         .speech = Speech::News});
  Place(ENTRY(L1, 4), Kind::Label, {90, 2040, 3108, 360},
        {.caption = "Purchase Insurance ?",
         .look = Heading(bankTeal, Align::Center),
         .speech = Speech::News});
  Place(ENTRY(Label1, 4), Kind::Label, {90, 2420, 3108, 330},
        {.look = {.ink = computerRed, .letterHeight = 200, .bold = true, .align = Align::Center},
         .speech = Speech::News});
  Place(ENTRY(CMDAN1, 0), Kind::Button, {340, 2790, 2608, 480},
        {.caption = "Purchase insurance", .look = button});
  Place(ENTRY(CMDAN1, 1), Kind::Button, {340, 3340, 2608, 480},
        {.caption = "No insurance", .look = button});
  Place(NAMED(CMDCANCEL), Kind::Button, {340, 3890, 2608, 480},
        {.caption = "Cancel Build", .look = button, .key = Key::Escape});
}

SVWindow::SVWindow(Surface& surface)
    : Window(surface, {"SV", "Property Repairs", 3396, 2844, TitleBar::NoButtons}) {
  Place(NAMED(Image1), Kind::Image, {1374, 120, 648, 648}, {.picture = PictureId::SV_Image1});
  Place(NAMED(Label1), Kind::Label, {120, 850, 3156, 1240},
        {.look = message, .speech = Speech::News});
  Place(NAMED(CMDOK), Kind::Button, {1098, 2220, 1200, 480},
        {.caption = "OK", .look = button, .key = Key::Escape});
}

RBWindow::RBWindow(Surface& surface)
    : Window(surface, {"RB", "Oh, Oh", 2928, 3516, TitleBar::CloseOnly}) {
  Place(NAMED(Label1), Kind::Label, {90, 80, 2748, 340},
        {.caption = "Zoning Board",
         .look = Heading(computerRed, Align::Center),
         .speech = Speech::News});
  Place(NAMED(MAN), Kind::Image, {834, 480, 1260, 1260}, {.picture = PictureId::RB_MAN});
  Place(NAMED(Label2), Kind::Label, {90, 1800, 2748, 1626},
        {.look = message, .speech = Speech::News});
}

MLWindow::MLWindow(Surface& surface)
    : Window(surface, {"ML", "Mall", 3300, 3720, TitleBar::Fixed}) {
  Place(NAMED(Label1), Kind::Label, {90, 80, 3120, 340},
        {.caption = "Property zoned for a Mall",
         .look = Heading(bankTeal, Align::Center),
         .speech = Speech::News});
  Place(NAMED(Image1), Kind::Image, {1220, 500, 860, 860});
  Place(NAMED(Label2), Kind::Label, {90, 1440, 3120, 1560},
        {.look = message, .speech = Speech::News});
  Place(ENTRY(CMD1, 0), Kind::Button, {240, 3120, 1320, 480}, {.caption = "Yes", .look = button});
  Place(ENTRY(CMD1, 1), Kind::Button, {1740, 3120, 1320, 480},
        {.caption = "No", .look = button, .key = Key::Escape});
}

CHNWindow::CHNWindow(Surface& surface)
    : Window(surface, {"CHN", "Take a Chance", 7092, 3036, TitleBar::Fixed}) {
  Place(NAMED(Label1), Kind::Label, {90, 80, 6912, 380},
        {.caption = "Your turn has come to Click on a chance card",
         .look = Heading(playerBlue, Align::Center),
         .speech = Speech::News});
  constexpr std::array<std::string_view, 3> names = {"Chance card 1", "Chance card 2",
                                                     "Chance card 3"};
  for (int card = 0; card < 3; ++card) {
    Place(ENTRY(Image1, card), Kind::Image, {150 + 1320 * card, 560, 1200, 1680},
          {.picture = static_cast<PictureId>(static_cast<int>(PictureId::CHN_Image1_0) + card),
           .label = names[card],
           .group = &cardGroup});
  }
  Place(NAMED(Label2), Kind::Label, {4140, 560, 2820, 1680},
        {.visible = false, .look = message, .speech = Speech::News});
  Place(NAMED(CMDOK), Kind::Button, {4950, 2400, 1200, 480}, {.caption = "OK", .look = button});
}

BKWindow::BKWindow(Surface& surface)
    : Window(surface, {"BK", "The Bank", 5328, 5040, TitleBar::NoButtons}) {
  Place(NAMED(ImageN), Kind::Image, {150, 640, 2295, 2295}, {.look = {.border = Border::Line}});
  Place(NAMED(Label1), Kind::Label, {90, 80, 5148, 440},
        {.caption = "I think we can arrange that",
         .look = Heading(bankTeal, Align::Center),
         .speech = Speech::News});
  Place(NAMED(Label2), Kind::Label, {150, 3120, 5028, 560},
        {.look = message, .speech = Speech::News});
  for (int i = 0; i < 5; ++i) {
    // They feed the picture that is shown and lie outside the client area themselves.
    Place(ENTRY(Image1, i), Kind::Image, {6000, 2400 * i, 2295, 2295},
          {.picture = static_cast<PictureId>(static_cast<int>(PictureId::BK_Image1_0) + i)});
  }
  constexpr std::array<std::string_view, 5> amounts = {"Borrow $100,000", "Borrow $200,000",
                                                       "Borrow $300,000", "Borrow $400,000",
                                                       "Borrow $500,000"};
  for (int i = 0; i < 5; ++i) {
    Place(ENTRY(OPT1, i), Kind::Option, {2700, 700 + 440 * i, 2450, 380},
          {.caption = amounts[i], .look = {.letterHeight = 220}, .group = &loanGroup});
  }
  Place(NAMED(CMDOK), Kind::Button, {500, 4000, 2044, 680},
        {.caption = "Accept Loan", .look = button});
  Place(NAMED(CMDCANCEL), Kind::Button, {2784, 4000, 2044, 680},
        {.caption = "Cancel Loan", .look = button, .key = Key::Escape});
  Place(NAMED(Timer1), Kind::Timer, {}, {.enabled = false, .interval = 500});
}

ABTWindow::ABTWindow(Surface& surface)
    : Window(surface, {"ABT", "About Box", 5400, 4200, TitleBar::CloseOnly, cream}) {
  Place(NAMED(Image1), Kind::Image, {2140, 180, 1120, 1120}, {.picture = PictureId::ABT_Image1});
  Place(NAMED(Label1), Kind::Label, {100, 1420, 5200, 2600},
        {.look = {.letterHeight = 180, .align = Align::Center}, .speech = Speech::News});
}

}  // namespace zelvo
