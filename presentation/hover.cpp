#include "presentation/hover.h"

#include <array>
#include <string_view>

namespace zelvo {
namespace {

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

}  // namespace

void GFM::Control_MouseMove(Game& g, Control& control) { g.GFM->Caption = control.design().hover; }

void GFM::Image1_MouseMove(Game& g, int index) {
  const PictureId picture = g.GFM->Image1[index].Picture;
  for (const LotLine& line : lotLines) {
    if (picture == (g.ICF->*line.icon).Picture) g.GFM->Caption = line.text;
  }
  if (picture == g.GFM->Rest.Picture) g.GFM->Caption = restaurantLine;
}

void ICF::Icon_MouseMove(Game& g, Control& icon) { g.ICF->Label1.Caption = icon.design().hover; }

void ICF::OPT1_MouseMove(Game& g, int index) { g.ICF->Label1.Caption = g.ICF->OPT1[index].Tag; }

void ICF::Form_MouseMove(Game& g) {
  g.ICF->Label1.Caption = "Move mouse over Icons for descriptions";
}

}  // namespace zelvo
