#include "tools/gallery/desktop_game.h"

#include <utility>

namespace zelvo {
namespace {

struct ShownText {
  std::string_view window;
  std::string_view control;
  std::string_view caption;
  PictureId picture = PictureId::None;
};

// The longest texts that the game writes into its labels, with amounts as late games have them.
constexpr ShownText exhibits[] = {
    {"GST", "Label2", "Version 3.2.4  Enjoy !"},
    {"GFM", "PCredit", "-$1,234,567,890"},
    {"GFM", "PNW", "$1,234,567,890"},
    {"GFM", "PNOH", "100"},
    {"GFM", "CCredit", "-$1,234,567,890"},
    {"GFM", "CNW", "$1,234,567,890"},
    {"GFM", "CNOH", "100"},
    {"GFM", "LSHOW", "Golf Course Built in Section  88"},
    {"GFM", "PSHOW",
     "Property #  88-PQH - Not Insured\n\rProperty Value is $1,234,567,890\n\rTaxes are "
     "$61,728,394 "
     "per year"},
    {"GFM", "Label1", "Zelvo 3.2 - Genius Level"},
    {"GFM", "Label10", "Level  3"},
    {"GFM", "BANKLABEL", "$1,234,567,890"},
    {"ICF", "Label1", "IRS Agent - Tax man - Banker, aren't they all the same ?"},
    {"TT", "Image1", "", PictureId::ICF_IRS},
    {"TT", "Label1", "Property Assessment"},
    {"TT", "Label2", "Your Mall investments netted you $1,234,567,890"},
    {"TT", "XSHOW", " 4"},
    {"WINX", "Label1", "Billionaire !!!"},
    {"WINX", "Label2", "Computer"},
    {"WINX", "Label3", "With $1,234,567,890"},
    {"HS", "Label1(1)", "Total Properties owned :  100"},
    {"HS", "Label1(2)", "12 Best Westerns owned"},
    {"HS", "Label1(3)", "Insurance Cost $1,234,567,890"},
    {"HS", "Label1(4)", "Not enough money for insurance"},
    {"HS", "Label1(5)", "Total: $1,234,567,890"},
    {"SV", "Label1",
     "Property Repairs on Lot #  88\n\rRepairs to your property are needed. This will cost you "
     "$1,234,567,890"},
    {"RB", "Label2",
     "THRIFTY hotels has turned you down for a license. You sold too many of their hotels in the "
     "past. Try someone else."},
    {"ML", "Image1", "", PictureId::ICF_MALL},
    {"ML", "Label2",
     "This property has been zone for a Mall. You have first dibs on investing. The investment is "
     "$1,234,567,890, you will have a 50% share in the Mall and it's profit and loss. Do you wish "
     "to invest ?"},
    {"CHN", "Label2",
     "The IRS didn't have a sense of humor when you told them your dog ate your return. "
     "Pay\n\r    $1,234,567,890"},
    {"BK", "ImageN", "", PictureId::BK_Image1_4},
    {"BK", "Label1", "NO Loan, You have borrowed enough ! Beat it !"},
    {"BK", "Label2", "Current loan : $500,000"},
    {"ABT", "Label1",
     "Zelvo 32\n\rVersion 3.2.4\n\rDesigned and built by the Zelvo developers\n\rQuestions are "
     "welcome in the issue tracker of the project\n\rAny problems, questions or suggestions, "
     "please "
     "let us know.\n\r         Click to close"},
};

}  // namespace

bool TextFits(ControlWidget& widget) {
  if (widget.control().Caption.empty()) return true;
  QSizeF area = widget.TextArea().size();
  if (widget.control().design().look.vertical) area.transpose();
  return QRectF(QPointF(), area).contains(widget.Text().bounds);
}

DesktopGame::DesktopGame() : platform(TestMachine()) { session.Start(); }

DesktopGame::~DesktopGame() { game.End(); }

Machine DesktopGame::TestMachine() {
  Machine machine;
  machine.dataFolder = ZELVO_SOURCE_ASSETS;
  machine.clock = [this] {
    if (whenClockIsRead) whenClockIsRead();
    return now;
  };
  machine.tickLength = [this](int) { return tickLength; };
  machine.leave = [this] { ++timesLeft; };
  machine.speaker = [this](const QString& text) { spoken.push_back(text.toStdString()); };
  machine.helpers = [this](const QAccessibleEvent& event) {
    helpersHeard.emplace_back(event.object(), event.type());
  };
  auto player = std::make_unique<SilentPlayer>();
  sound = player.get();
  machine.sound = std::move(player);
  return machine;
}

void DesktopGame::StartGame() {
  platform.gate.Deliver([this](Surface& surface) { surface.Click(game.GST->CMDSTART); });
}

WindowView& DesktopGame::View(Window& window) { return *platform.screen.ViewOf(window); }

ControlWidget& DesktopGame::Widget(Control& control) {
  return *View(control.window()).Find(control);
}

void DesktopGame::Exhibit(Window& window) {
  game.Load(window);
  // The activation of some windows plays a scene that would end in other texts.
  const auto activate = std::exchange(window.handlers.activate, nullptr);
  game.Show(window);
  window.handlers.activate = activate;
  for (Control* control : window.controls()) control->Visible = true;
  for (const ShownText& exhibit : exhibits) {
    if (exhibit.window != window.name()) continue;
    Control* control = window.Find(exhibit.control);
    control->Caption = exhibit.caption;
    if (exhibit.picture != PictureId::None) control->Picture = exhibit.picture;
  }
  platform.screen.Sync();
}

}  // namespace zelvo
