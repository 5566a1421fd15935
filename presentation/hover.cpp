#include "presentation/hover.h"

#include <array>
#include <string>
#include <string_view>

namespace zelvo {
namespace {

struct Line {
  std::string_view control;
  std::string_view text;
};

constexpr std::array<Line, 16> boardLines = {{
    {"BANKLABEL", "Click to borrow money from the bank"},
    {"Label8", "Click to borrow money from the bank"},
    {"SUPER", "Super Saver"},
    {"THRIFTY", "Thrifty Inn"},
    {"QUALITY", "Quality Inn"},
    {"BEST", "Best Western"},
    {"RAMADA", "Ramada Inn"},
    {"HILTON", "Hilton"},
    {"Rest", "Restaurant"},
    {"CMDEXIT", "Click to Exit game"},
    {"CMDGO", "Finished, Computers Turn"},
    {"CMDHELP", "Click for Setup menu"},
    {"Label1", "Click to change Skill level"},
    {"Panel3D2", "Zelvo Help"},
    {"Panel3D4", "Zelvo Help"},
    {"PSHOW", "Play Instructions"},
}};

constexpr std::array<Line, 22> legendLines = {{
    {"LUND", "Empty Non-zoned lot"},
    {"LOPEN", "Open zoned lot"},
    {"LDIRT", "Condemed Lot"},
    {"PLAYER", "Player owned lot"},
    {"COMP", "Computer owned lot"},
    {"SUPER", "Super Saver - Lowest price"},
    {"THRIFTY", "Thrifty Inn"},
    {"QUALITY", "Quality Inn"},
    {"BEST", "Best Westren"},
    {"RAMADA", "Ramada Inn"},
    {"HILTON", "Hilton - Highest Priced"},
    {"CREST", "Restaurant, increases area property values"},
    {"PARK", "Park - raises property value"},
    {"GOLF", "Golf Course - raises property value"},
    {"MALL", "Mall, increases property value plus you may invest !"},
    {"CITY", "Caseno lot Worth $$$"},
    {"ELEC", "Lighting Strike - Levels hotel"},
    {"FIRE", "Fire, Destroys property"},
    {"PLANE", "Plane Crash - destroys property and value"},
    {"PAINT", "Repairs needed on property, you better have enough money"},
    {"IRS", "IRS Agent - Tax man - Banker, aren't they all the same ?"},
    {"MAN1", "Y O U  Bone Head"},
}};

struct LotLine {
  Member<Control, ICFWindow> icon;
  std::string_view text;
};

constexpr std::string_view restaurantLine = "Restaurant, raises surounding property values.";
constexpr std::array<LotLine, 9> lotLines = {{
    {&ICFWindow::LUND, "Not zoned undeveloped lot"},
    {&ICFWindow::LOPEN, "Zoned undeveloped lot"},
    {&ICFWindow::LDIRT, "Condemed lot"},
    {&ICFWindow::COMP, "Computer owned lot"},
    {&ICFWindow::PLAYER, "Player owned lot"},
    {&ICFWindow::CITY, "Caseno owned lot"},
    {&ICFWindow::GOLF, "Golf Course, raises property value"},
    {&ICFWindow::PARK, "Park, raises property value"},
    {&ICFWindow::CREST, restaurantLine},
}};

template <std::size_t n>
void Write(std::string& line, const std::array<Line, n>& lines, const Control& control) {
  for (const Line& known : lines) {
    if (known.control == control.name()) line = known.text;
  }
}

}  // namespace

void GFM::Control_MouseMove(Game& g, Control& control) {
  Write(g.GFM->Caption, boardLines, control);
}

void GFM::Image1_MouseMove(Game& g, int index) {
  const PictureId picture = g.GFM->Image1[index].Picture;
  for (const LotLine& line : lotLines) {
    if (picture == (g.ICF->*line.icon).Picture) g.GFM->Caption = line.text;
  }
  if (picture == g.GFM->Rest.Picture) g.GFM->Caption = restaurantLine;
}

void ICF::Icon_MouseMove(Game& g, Control& icon) {
  Write(g.ICF->Label1.Caption, legendLines, icon);
}

void ICF::OPT1_MouseMove(Game& g, int index) { g.ICF->Label1.Caption = g.ICF->OPT1[index].Tag; }

void ICF::Form_MouseMove(Game& g) {
  g.ICF->Label1.Caption = "Move mouse over Icons for descriptions";
}

}  // namespace zelvo
