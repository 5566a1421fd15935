#include "faces/desktop/drawing.h"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QTest>
#include <functional>
#include <sstream>
#include <vector>

#include "faces/desktop/placing.h"
#include "tests/recorded.h"
#include "tools/gallery/desktop_game.h"

namespace zelvo {
namespace {

using Draw = std::function<void(QPainter&, const QRectF&)>;

/// What is drawn on a green ground, 100 by 60 pixels.
QImage Drawn(const Draw& draw) {
  QImage image(100, 60, QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::green);
  QPainter painter(&image);
  draw(painter, QRectF(image.rect()));
  return image;
}

/// The colours along a way through a picture, in eight steps of red, green and blue, each with its
/// length: "100 070" is all green. What is a pixel wide is a blend, which each toolkit makes its
/// way.
std::string Along(const QImage& image, QPoint from, QPoint step) {
  std::string runs, last;
  int length = 0;
  for (QPoint at = from;; at += step) {
    std::string color;
    if (image.valid(at)) {
      const QColor pixel = image.pixelColor(at);
      for (const int part : {pixel.red(), pixel.green(), pixel.blue()}) {
        color += std::to_string(part / 32);
      }
    }
    if (color != last && length > 0) {
      const bool blend = length <= 2 && step.manhattanLength() == 1;
      const std::string run = blend ? "*" : std::to_string(length) + " " + last;
      if (!blend || !runs.ends_with("*, ")) runs += run + ", ";
    }
    length = color == last ? length + 1 : 1;
    if (color.empty()) return runs;
    last = color;
  }
}

TEST(Drawing, ShapesHaveTheirMeasures) {
  constexpr double unit = 0.5;
  std::string all;
  const auto add = [&all](const std::string& name, const Draw& draw) {
    const QImage image = Drawn(draw);
    const bool gradient = name.starts_with("button");
    all += name + "\n  across: " + Along(image, {0, 29}, {1, 0}) +
           "\n  down: " + Along(image, {49, 0}, {0, gradient ? 12 : 1}) + "\n";
  };
  for (const auto& [name, border] : {std::pair{"no border", Border::None},
                                     {"line", Border::Line},
                                     {"sunken", Border::Sunken},
                                     {"raised", Border::Raised},
                                     {"street", Border::Road}}) {
    add(name, [line = border](QPainter& painter, const QRectF& area) {
      DrawGround(painter, area, {.ground = 0x808080, .border = line}, unit);
    });
  }
  for (const bool vertical : {false, true}) {
    add(vertical ? "avenue" : "lanes", [vertical](QPainter& painter, const QRectF& area) {
      DrawGround(painter, area, {.border = Border::Road, .vertical = vertical}, unit);
      DrawLanes(painter, area, vertical, 4.0 / 14);
    });
  }
  add("focus", [](QPainter& p, const QRectF& area) { DrawFocus(p, area, 4.0 / 22); });
  add("in hand", [](QPainter& p, const QRectF& area) { DrawInHand(p, area, unit); });
  for (const auto& [name, standing] : {std::pair{"at rest", Standing{}},
                                       {"hovered", Standing{true, true, false}},
                                       {"pressed", Standing{true, true, true}},
                                       {"disabled", Standing{false, true, false}}}) {
    const Standing how = standing;
    const std::string called = name;
    add("picture " + called,
        [&](QPainter& p, const QRectF& area) { DrawHover(p, area, how, unit); });
    add("button " + called,
        [&](QPainter& p, const QRectF& area) { DrawButton(p, area, how, unit); });
    for (const bool round : {false, true}) {
      add((round ? "option " : "box ") + called, [&](QPainter& p, const QRectF& /*area*/) {
        DrawMark(p, {23, 3, 52, 52}, round, how.pressed, how, unit);
      });
    }
  }
  test::ExpectAsRecorded("desktop/shapes.txt", all,
                         [](const std::string& line) { return line.front() != ' '; });
}

/// Where the letters of a text lie that is drawn in a look.
QRect Ink(Look look, const char* text) {
  look.ink = 0xff0000;
  const QImage image = Drawn([&](QPainter& painter, const QRectF& area) {
    DrawText(painter, area, Fit(text, look, area.size(), 0.1), look);
  });
  QRect ink;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      if (image.pixelColor(x, y).green() < 128) ink |= QRect(x, y, 1, 1);
    }
  }
  return ink;
}

TEST(Drawing, TextsStandWhereTheirLookPutsThem) {
  const auto at = [](Align align) { return Ink({.letterHeight = 150, .align = align}, "HH"); };
  const QRect left = at(Align::Left);
  const QRect centre = at(Align::Center);
  const QRect right = at(Align::Right);
  EXPECT_LT(left.left(), 4);
  EXPECT_NEAR(centre.center().x(), 49, 2);
  EXPECT_GT(right.right(), 95);
  for (const QRect& ink : {left, centre, right}) {
    EXPECT_NEAR(ink.width(), left.width(), 1);  // letters stand between pixels
    EXPECT_EQ(ink.height(), left.height());
    EXPECT_NEAR(ink.center().y(), 29, 3);
  }
  EXPECT_GT(Ink({.letterHeight = 200}, "HH").height(), left.height());
  EXPECT_GT(Ink({.letterHeight = 300, .bold = true}, "HH").width(),
            Ink({.letterHeight = 300}, "HH").width());
  // From bottom to top: it begins at the foot.
  const QRect vertical = Ink({.letterHeight = 150, .vertical = true}, "HH");
  EXPECT_EQ(vertical.width(), left.height());
  EXPECT_NEAR(vertical.height(), left.width(), 1);
  EXPECT_GT(vertical.bottom(), 55);
  EXPECT_NEAR(vertical.center().x(), 49, 3);
  // What is too long for a line is broken, and what is too long for the area becomes smaller.
  EXPECT_GT(Ink({.letterHeight = 150}, "HHHH HHHH HHHH").height(), 2 * left.height());
  EXPECT_LT(Ink({.letterHeight = 900}, "HHHH").width(), 100);
  // The name of a street covers the line between its lanes.
  const QImage street = Drawn([](QPainter& painter, const QRectF& area) {
    const Look look = {.ground = 0, .align = Align::Center, .border = Border::Road};
    painter.fillRect(area, Qt::red);
    DrawText(painter, area, Fit("I", look, area.size(), 0.1), look);
  });
  EXPECT_EQ(street.pixelColor(42, 25), Qt::black);
  EXPECT_EQ(street.pixelColor(30, 25), Qt::red);
  EXPECT_EQ(street.pixelColor(42, 10), Qt::red) << "a kerb";
}

TEST(Placing, KeepsWindowsOnTheScreenAndBesideASpot) {
  EXPECT_EQ(ScaleThatFits({200, 100}, {400, 300}, 1.5), 1.5);
  EXPECT_EQ(ScaleThatFits({200, 100}, {400, 300}, 3), 2);
  EXPECT_EQ(ScaleThatFits({200, 100}, {400, 120}, 3), 1.2);
  const QRect room(10, 20, 300, 200);
  const auto moved = [&](int x, int y) { return MovedInto(room, {x, y, 100, 50}).topLeft(); };
  EXPECT_EQ(moved(60, 70), QPoint(60, 70));
  EXPECT_EQ(moved(0, 0), QPoint(10, 20));
  EXPECT_EQ(moved(300, 300), QPoint(210, 170));
  const auto beside = [&](const QRect& spot) {
    return MovedBeside(spot, room, {100, 100, 100, 50}).topLeft();
  };
  EXPECT_EQ(beside({20, 30, 50, 50}), QPoint(100, 100)) << "clear of it as it is";
  EXPECT_EQ(beside({90, 90, 20, 100}), QPoint(110, 100));
  EXPECT_EQ(beside({190, 90, 20, 100}), QPoint(90, 100));
  EXPECT_EQ(beside({90, 90, 150, 20}), QPoint(100, 110));
  EXPECT_EQ(beside({90, 140, 150, 20}), QPoint(100, 90));
  EXPECT_EQ(beside({10, 20, 300, 200}), QPoint(100, 100)) << "there is no other place";
}

class Looks : public testing::Test, public DesktopGame {};

TEST_F(Looks, EveryStateOfAControlHasALookOfItsOwn) {
  StartGame();
  View(game.GFM).resize(1000, 600);
  Exhibit(game.ICF);
  std::string all;
  for (Control* control : std::initializer_list<Control*>{
           &game.GFM->Image1[50], &game.GFM->SUPER, &game.GFM->CMDGO, &game.GFM->Label8,
           &game.GFM->PCredit, &game.GFM->Label7[0], &game.ICF->OPT1[1], &game.ICF->CKBANK}) {
    SCOPED_TRACE(control->FullName());
    ControlWidget& widget = Widget(*control);
    const auto look = [&] {
      platform.screen.Sync();
      return widget.grab().toImage();
    };
    std::vector<QImage> looks;
    const auto isNew = [&] {
      looks.push_back(look());
      // Down through a button's picture, or through what frames and marks all others.
      const bool button = control->kind() == Kind::Button;
      const QPoint from(button ? widget.width() / 2 : 5, 0);
      all += "  " + Along(looks.back(), from, {0, button ? 12 : 1}) + "\n";
      return std::count(looks.begin(), looks.end(), looks.back()) == 1;
    };
    all += control->FullName() + "\n";
    EXPECT_TRUE(isNew());
    control->window().inHand = control;
    EXPECT_TRUE(isNew());
    control->window().inHand = nullptr;
    widget.setAttribute(Qt::WA_UnderMouse);
    EXPECT_EQ(isNew(), widget.control().IsClickable());
    const QImage hovered = looks.back();
    QTest::mousePress(&widget, Qt::LeftButton);
    EXPECT_EQ(isNew(), widget.control().IsClickable());
    QEnterEvent released({}, {}, {});
    QCoreApplication::sendEvent(&widget, &released);
    EXPECT_EQ(look(), hovered);
    QTest::mousePress(&widget, Qt::LeftButton);
    QTest::mouseRelease(&widget, Qt::LeftButton, {}, {-5, -5});
    widget.setAttribute(Qt::WA_UnderMouse, false);
    EXPECT_EQ(look(), looks.front());
    widget.setFocus();
    EXPECT_EQ(look(), looks.front()) << "the mouse is in use";
    platform.screen.usesKeys = true;
    EXPECT_EQ(isNew(), widget.hasFocus());
    platform.screen.usesKeys = false;
    control->SetEnabled(false);
    EXPECT_TRUE(isNew());
    control->SetEnabled(true);
    if (control->kind() == Kind::Option || control->kind() == Kind::CheckBox) {
      control->SetValue(!control->Value());
      EXPECT_TRUE(isNew());
    }
    (control->kind() == Kind::Image ? control->Tag : control->Caption) = "X";
    EXPECT_EQ(isNew(), control->kind() != Kind::Image) << "tags are not seen";
    control->Picture = PictureId::ICF_GOLF;
    EXPECT_EQ(isNew(), control->kind() == Kind::Image || control->kind() == Kind::Button);
    control->Visible = false;
    platform.screen.Sync();
    EXPECT_TRUE(QTest::qWaitFor([&] { return !widget.isVisible(); }));
  }
  test::ExpectAsRecorded("desktop/looks.txt", all,
                         [](const std::string& line) { return line.front() != ' '; });
}

std::ostream& operator<<(std::ostream& out, const QRect& rect) {
  return out << rect.x() << ' ' << rect.y() << ' ' << rect.width() << ' ' << rect.height();
}

/// How a widget of ours, or a group of them, is told to those who do not see it.
void DescribeVoice(std::ostream& out, QObject* object) {
  QAccessibleInterface* voice = QAccessible::queryAccessibleInterface(object);
  out << "role " << voice->role() << " \"" << voice->text(QAccessible::Name).toStdString()
      << "\" \"" << voice->text(QAccessible::Description).toStdString() << '"';
  if (voice->state().checkable) out << (voice->state().checked ? " checked" : " not checked");
  QAccessibleActionInterface* actions = voice->actionInterface();
  if (actions == nullptr) return;
  if (actions->actionNames().contains(QAccessibleActionInterface::pressAction())) out << " Press";
}

// Where things lie, for eyes and ears; not how large letters are, which goes by the machine's
// fonts.
TEST_F(Looks, WindowsAreLaidOutAsRecorded) {
  StartGame();
  View(game.GFM).resize(1000, 600);
  std::ostringstream all;
  for (Window* window : game.Windows()) {
    Exhibit(*window);
    WindowView& view = View(*window);
    constexpr auto ours =
        Qt::FramelessWindowHint | Qt::WindowCloseButtonHint | Qt::CustomizeWindowHint;
    all << window->name() << ", flags " << std::hex << (view.windowFlags() & ours) << std::dec
        << ", at " << view.geometry() << ", at least " << view.minimumWidth() << ' '
        << view.minimumHeight() << ", ground "
        << view.grab().toImage().pixelColor(0, 0).name().toStdString() << ", ";
    DescribeVoice(all, &view);
    for (ControlWidget* widget : view.widgets()) {
      const QRectF text(widget->TextArea().topLeft() * 10, widget->TextArea().size() * 10);
      all << "\n  " << widget->control().FullName() << " at " << widget->geometry() << ", text "
          << text.toRect() << " of 10, focus " << widget->focusPolicy() << ", cursor "
          << widget->cursor().shape() << ", ";
      DescribeVoice(all, widget);
    }
    all << '\n';
    game.Hide(*window);
    platform.screen.Sync();
  }
  test::ExpectAsRecorded("desktop/windows.txt", all.str(), [](const std::string&) { return true; });
}

}  // namespace
}  // namespace zelvo
