#include "surface/named.h"
#include "surface/windows/looks.h"
#include "surface/windows/windows.h"

namespace zelvo {
namespace {

constexpr int lotSize = 480;
// Streets run between the lots, so rows and columns are not evenly spaced.
constexpr std::array<int, boardWidth> columnLeft = {0,    960,  1440, 1920, 2400,
                                                    3120, 3600, 4080, 4560, 5280};
constexpr std::array<int, boardWidth> rowTop = {0,    720,  1200, 1920, 2400,
                                                3120, 3600, 4200, 4680, 5280};
constexpr int boardSize = columnLeft.back() + lotSize;

struct Strip {
  std::string_view text;
  Box box;
  std::string_view words = {};
};

// A street goes from Park Place to Madison Place; its ends beyond them bear no name.
constexpr int parkPlace = columnLeft[1];
constexpr int madisonPlace = columnLeft[8] + lotSize;
constexpr int eastLots = columnLeft[9];
/// The names of the streets stand one below the other, clear of the avenue that crosses them.
constexpr int streetName = parkPlace + (madisonPlace - parkPlace) / 4;

constexpr std::array<Strip, 13> streets = {{
    {"5th Ave", {0, 5160, boardSize, 120}, "5th Avenue"},
    {"4th Ave", {parkPlace, 4080, madisonPlace - parkPlace, 120}, "4th Avenue"},
    {"3 rd Ave", {parkPlace, 2880, madisonPlace - parkPlace, 240}, "3rd Avenue"},
    {"2 nd Ave", {parkPlace, 1680, madisonPlace - parkPlace, 240}, "2nd Avenue"},
    {"1st Ave", {parkPlace, 480, madisonPlace - parkPlace, 240}, "1st Avenue"},
    {"", {0, 480, lotSize, 240}},
    {"", {eastLots, 480, lotSize, 240}},
    {"", {0, 1680, lotSize, 240}},
    {"", {eastLots, 1680, lotSize, 240}},
    {"", {0, 2880, lotSize, 240}},
    {"", {eastLots, 2880, lotSize, 240}},
    {"", {0, 4080, lotSize, 120}},
    {"", {eastLots, 4080, lotSize, 120}},
}};

constexpr std::array<Color, 6> lights = {0xd22f2f, 0xf08fb0,    0x8cc8f0,
                                         0x3fa34d, looks::gold, looks::bankTeal};

constexpr Group boardGroup = {"Board", true};
constexpr Group streetGroup = {"Streets"};
constexpr std::array<Group, 2> ledgerGroups = {{{"Player"}, {"Computer"}}};
constexpr Group newsGroup = {"News"};
constexpr Group actionGroup = {"Actions"};
constexpr Group classGroup = {"Buildings", true};

/// An arrangement for a phone, where all that is pressed is to be large enough for a finger. The
/// board keeps its place, but the narrow avenues get room for letters that can be read. `strip` is
/// the place of level and bank; `others` are those of what stands beside the board, its panel last.
constexpr std::array<MovedPart, 17> ForFingers(Box strip, std::array<MovedPart, 7> others) {
  const auto within = [strip](Box box) {
    const auto x = [strip](int twips) { return twips * strip.width / 5805; };
    const auto y = [strip](int twips) { return twips * strip.height / 990; };
    return Box{strip.left + x(box.left), strip.top + y(box.top), x(box.width), y(box.height)};
  };
  return {{
      {{50, 30, 5805, 4080}, {50, 30, 5805, 4080}},              // down to 4th Avenue
      {{50, 4110, 5805, 120}, {50, 4110, 5805, 160}},            // 4th Avenue
      {{50, 4230, 5805, 960}, {50, 4270, 5805, 960}},            // down to 5th Avenue
      {{50, 5190, 5805, 120}, {50, 5230, 5805, 160}},            // 5th Avenue
      {{50, 5310, 5805, 480}, {50, 5390, 5805, 480}},            // the last row
      {{50, 30, 5805, 5800}, {50, 30, 5805, 5880}},              // panel, and what goes across
      {{130, 5920, 4360, 370}, within({80, 60, 4360, 450})},     // level and bank
      {{130, 6300, 4360, 340}, within({80, 520, 4360, 430})},    // what stands below them
      {{4550, 5930, 1240, 710}, within({4500, 60, 1240, 880})},  // setup and exit
      {{50, 5850, 5805, 876}, strip},                            // their panel
      others[0],
      others[1],
      others[2],
      others[3],
      others[4],
      others[5],
      others[6],
  }};
}

/// The board at the full width; below it, side by side, what stands above one another on a wide
/// screen.
constexpr auto tallBoard = ForFingers(
    {50, 9520, 5805, 990}, {{
                               {{5970, 110, 3414, 2185}, {110, 6020, 2810, 1780}},    // ledgers
                               {{5970, 2350, 3414, 1820}, {2985, 6020, 2810, 1780}},  // news
                               {{6800, 4755, 2320, 400}, {660, 8375, 2260, 440}},     // "Go ahead"
                               {{6240, 4230, 2880, 960}, {110, 7885, 2810, 930}},     // buildings
                               {{5970, 5240, 3414, 850}, {2985, 7860, 2810, 980}},    // actions
                               {{6240, 6140, 2880, 530}, {110, 8900, 5685, 540}},     // end of turn
                               {{5880, 30, 3594, 6696}, {50, 5930, 5805, 3570}},      // their panel
                           }});

/// The board at the full height, and beside it two columns.
constexpr auto lowBoard =
    ForFingers({5890, 4780, 6660, 1130},
               {{
                   {{5970, 110, 3414, 2185}, {5970, 120, 3260, 2260}},    // ledgers
                   {{5970, 2350, 3414, 1820}, {5970, 2450, 3260, 2220}},  // news
                   {{6800, 4755, 2320, 400}, {9960, 675, 2520, 480}},     // "Go ahead"
                   {{6240, 4230, 2880, 960}, {9340, 120, 3140, 1040}},    // buildings
                   {{5970, 5240, 3414, 850}, {9310, 1400, 3200, 1700}},   // actions
                   {{6240, 6140, 2880, 530}, {9340, 3550, 3140, 1050}},   // end of turn
                   {{5880, 30, 3594, 6696}, {5890, 30, 6660, 4720}},      // their panel
               }});

constexpr int boardLevel = -2;
constexpr int afterBoard = -1;

}  // namespace

GFMWindow::GFMWindow(Surface& surface)
    : Window(surface, {.name = "GFM",
                       .title = "Game Board",
                       .width = 9504,
                       .height = 6756,
                       .titleBar = TitleBar::Sizable,
                       .label = "Game board",
                       .tall = {5905, 10540, tallBoard},
                       .low = {12600, 5940, lowBoard},
                       .isMain = true}) {
  PlaceBoard();
  PlaceLedgers();
  PlaceActions();
  PlaceBottomStrip();
  Place(NAMED(Timer1), Kind::Timer, {});
}

void GFMWindow::PlaceBoard() {
  Place(NAMED(Panel3D1), Kind::Panel, {50, 30, 5805, 5800},
        {.look = {.ground = looks::asphalt, .border = Border::Raised}});
  for (int i = 0; i < 13; ++i) {
    Look look = looks::street;
    if (!streets[i].text.empty())
      look.textShare = 2.0 * (streetName - streets[i].box.left) / streets[i].box.width;
    Place(ENTRY(Label7, i), Kind::Label, streets[i].box,
          {.caption = streets[i].text,
           .look = look,
           .words = streets[i].words,
           .group = &streetGroup},
          &Panel3D1);
  }
  const auto avenue = [this](int number, Box box, std::string_view text, std::string_view words) {
    Place(ENTRY(Label6, number), Kind::Label, box,
          {.caption = text, .look = looks::avenue, .words = words, .group = &streetGroup},
          &Panel3D1);
  };
  avenue(0, {madisonPlace, 0, eastLots - madisonPlace, boardSize}, "M A D I S  O N    P L A C E",
         "Madison Place");
  avenue(2, {2880, 0, 240, boardSize}, "B  R O A D W A Y", "Broadway");
  avenue(4, {lotSize, 0, parkPlace - lotSize, boardSize}, "P A R  K      P L A C E", "Park Place");
  for (int lot = 0; lot < lotCount; ++lot) {
    Place(ENTRY(Image1, lot), Kind::Image,
          {columnLeft[lot % boardWidth], rowTop[lot / boardWidth], lotSize, lotSize},
          {.look = {.border = Border::Line},
           .label = "Lot",
           .numbered = true,
           .group = &boardGroup,
           .tabLevel = boardLevel},
          &Panel3D1);
  }
}

void GFMWindow::PlaceLedgers() {
  using namespace looks;
  Place(NAMED(Panel3D2), Kind::Panel, {5880, 30, 3594, 6696},
        {.look = panel, .hover = "Zelvo Help"});

  const auto ledger = [this](int top, int side, Color colour, NamedControl emblem,
                             NamedControl heading, NamedControl up, NamedControl credit,
                             NamedControl worth, NamedControl owned) {
    const bool player = side == 0;
    const Group* group = &ledgerGroups[side];
    constexpr int nameWidth = 1500;
    constexpr int amountLeft = 90 + nameWidth;
    constexpr int amountWidth = 1914;
    Place(heading, Kind::Label, {90, top, 3414, 300},
          {.caption = player ? "Player" : "Computer",
           .look = Heading(colour, Align::Center),
           .group = group},
          &Panel3D2);
    Place(emblem, Kind::Image, {120, top + 15, 270, 270},
          {.picture = player ? PictureId::GFM_Image2 : PictureId::GFM_Image3, .group = group},
          &Panel3D2);
    Place(up, Kind::Label, {2960, top + 40, 480, 220},
          {.caption = "UP",
           .visible = false,
           .look = {.ink = ink,
                    .ground = gold,
                    .letterHeight = 170,
                    .bold = true,
                    .align = Align::Center},
           .words = player ? "Player's turn" : "Computer's turn",
           .group = group},
          &Panel3D2);
    Place(ENTRY(Label4, side), Kind::Label, {90, top + 310, nameWidth, 245},
          {.caption = "Credit  $", .look = AmountName(colour), .group = group}, &Panel3D2);
    Place(credit, Kind::Label, {amountLeft, top + 310, amountWidth, 245},
          {.look = amount,
           .label = player ? "Player's credit" : "Computer's credit",
           .group = group,
           .speech = Speech::Standing},
          &Panel3D2);
    Place(ENTRY(Label5, side), Kind::Label, {90, top + 565, nameWidth, 245},
          {.caption = "Net Worth $", .look = AmountName(colour), .group = group}, &Panel3D2);
    Place(worth, Kind::Label, {amountLeft, top + 565, amountWidth, 245},
          {.look = amount,
           .label = player ? "Player's net worth" : "Computer's net worth",
           .group = group,
           .speech = Speech::Standing},
          &Panel3D2);
    // The player's line is the one numbered 1.
    const int line = 1 - side;
    Place(ENTRY(NHLabel, line), Kind::Label, {90, top + 820, 2714, 245},
          {.caption = player ? "Number of properties owned " : "Number of properties owned  ",
           .look = AmountName(colour),
           .group = group},
          &Panel3D2);
    Place(owned, Kind::Label, {2804, top + 820, 700, 245},
          {.look = amount,
           .label = player ? "Player's properties" : "Computer's properties",
           .group = group,
           .speech = Speech::Standing},
          &Panel3D2);
  };
  ledger(80, 0, playerBlue, NAMED(Image2), NAMED(Label2), NAMED(PUP), NAMED(PCredit), NAMED(PNW),
         NAMED(PNOH));
  ledger(1200, 1, computerRed, NAMED(Image3), NAMED(Label3), NAMED(CUP), NAMED(CCredit), NAMED(CNW),
         NAMED(CNOH));

  Place(NAMED(LSHOW), Kind::Label, {90, 2320, 3414, 290},
        {.look = {.ink = white, .ground = night, .letterHeight = 190, .align = Align::Center},
         .group = &newsGroup,
         .speech = Speech::News},
        &Panel3D2);
  int left = 90;
  for (int light = 1; light <= 6; ++light) {
    const int width = 254 + 90 * light;
    Place(ENTRY(LITE, light), Kind::Label, {left, 2625, width, 95},
          {.visible = false, .look = {.ground = lights[light - 1]}}, &Panel3D2);
    left += width;
  }
  Place(NAMED(Panel3D3), Kind::Panel, {90, 2740, 3414, 1400}, {.look = panel}, &Panel3D2);
  Place(NAMED(PSHOW), Kind::Label, {45, 45, 3324, 1310},
        {.look = {.ground = cream, .letterHeight = 190},
         .hover = "Play Instructions",
         .group = &newsGroup,
         .speech = Speech::News},
        &Panel3D3);
}

void GFMWindow::PlaceActions() {
  struct Icon {
    NamedControl control;
    std::string_view words;
    PictureId picture;
    int left;
    int top;
  };
  const std::array<Icon, 7> icons = {{
      {NAMED(SUPER), "Super Saver", PictureId::GFM_SUPER, 360, 4200},
      {NAMED(THRIFTY), "Thrifty Inn", PictureId::GFM_THRIFTY, 840, 4200},
      {NAMED(QUALITY), "Quality Inn", PictureId::GFM_QUALITY, 1320, 4200},
      {NAMED(BEST), "Best Western", PictureId::GFM_BEST, 1800, 4200},
      {NAMED(RAMADA), "Ramada Inn", PictureId::GFM_RAMADA, 2280, 4200},
      {NAMED(HILTON), "Hilton", PictureId::GFM_HILTON, 2760, 4200},
      {NAMED(Rest), "Restaurant", PictureId::GFM_Rest, 360, 4680},
  }};
  for (const Icon& icon : icons) {
    Place(icon.control, Kind::Image, {icon.left, icon.top, 480, 480},
          {.tag = "0",
           .picture = icon.picture,
           .look = {.border = Border::Line},
           .words = icon.words,
           .hover = icon.words,
           .group = &classGroup},
          &Panel3D2);
  }
  const auto action = [this](NamedControl control, Box box, std::string_view caption, int level) {
    Place(control, Kind::Button, box,
          {.caption = caption,
           .visible = false,
           .look = looks::button,
           .group = &actionGroup,
           .tabLevel = level},
          &Panel3D2);
  };
  // From a lot the keyboard comes to what can be done with it; from "Select Building" by the icons
  // to "Go ahead".
  action(NAMED(BUILDIT), {920, 4725, 2320, 400}, "Go ahead, Build it", 0);
  action(NAMED(CMDBUY), {120, 5210, 1650, 410}, "Buy Property", afterBoard);
  action(NAMED(CMDBUILD), {1824, 5210, 1650, 410}, "Select Building", afterBoard);
  action(NAMED(CMDSELL), {120, 5650, 1650, 410}, "Sell Property", afterBoard);
  action(NAMED(CMDSHOT), {1824, 5650, 1650, 410}, "Sell Building", afterBoard);
  Place(NAMED(CMDGO), Kind::Button, {360, 6110, 2880, 530},
        {.picture = PictureId::GFM_CMDGO,
         .words = "End of turn",
         .hover = "Finished, Computers Turn",
         .key = Key::CtrlEnter},
        &Panel3D2);
}

void GFMWindow::PlaceBottomStrip() {
  using namespace looks;
  constexpr std::string_view borrow = "Click to borrow money from the bank";
  Place(NAMED(Panel3D4), Kind::Panel, {50, 5850, 5805, 876},
        {.look = panel, .hover = "Zelvo Help"});
  Place(NAMED(Label1), Kind::Label, {80, 70, 2250, 370},
        {.look = {.ink = playerBlue, .letterHeight = 200, .bold = true},
         .label = "Skill level",
         .hover = "Click to change Skill level"},
        &Panel3D4);
  Place(NAMED(Label10), Kind::Label, {80, 450, 2250, 330},
        {.caption = "Level", .look = {.letterHeight = 190}}, &Panel3D4);
  Place(
      NAMED(Label8), Kind::Label, {2360, 70, 2080, 360},
      {.caption = "First National Bank", .look = Heading(bankTeal, Align::Center), .hover = borrow},
      &Panel3D4);
  Place(NAMED(Label9), Kind::Label, {2360, 450, 980, 340},
        {.caption = "Net Worth $", .look = {.ink = white, .ground = bankTeal, .letterHeight = 130}},
        &Panel3D4);
  Place(NAMED(BANKLABEL), Kind::Label, {3340, 450, 1100, 340},
        {.caption = "$",
         .look = amount,
         .label = "Bank's net worth",
         .hover = borrow,
         .speech = Speech::Standing},
        &Panel3D4);
  Place(NAMED(CMDHELP), Kind::Button, {4500, 80, 600, 710},
        {.picture = PictureId::GFM_CMDHELP,
         .words = "Setup",
         .hover = "Click for Setup menu",
         .key = Key::F1},
        &Panel3D4);
  Place(NAMED(CMDEXIT), Kind::Button, {5140, 80, 600, 710},
        {.picture = PictureId::GFM_CMDEXIT, .words = "Exit", .hover = "Click to Exit game"},
        &Panel3D4);
}

}  // namespace zelvo
