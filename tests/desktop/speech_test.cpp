#include <gtest/gtest.h>

#include <QAccessible>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QMessageBox>
#include <algorithm>
#include <utility>

#include "tests/desktop/player.h"

namespace zelvo {
namespace {

QAccessibleInterface* Voice(QObject* object) {
  return QAccessible::queryAccessibleInterface(object);
}

std::string Text(QObject* object, QAccessible::Text kind = QAccessible::Name) {
  return Voice(object)->text(kind).toStdString();
}

class Speech : public testing::Test, public Player {
 protected:
  /// What was said since the last time.
  std::vector<std::string> Heard() { return std::exchange(spoken, {}); }
};

using Texts = std::vector<std::string>;

/// Walks a tree of what helpers see; gives back its objects.
std::vector<QObject*> Walked(QAccessibleInterface* from) {
  std::vector<QObject*> objects = {from->object()};
  EXPECT_TRUE(from->text(QAccessible::Name).isEmpty() ||
              from->text(QAccessible::Name) != from->text(QAccessible::Description));
  for (const int beyond : {-1, from->childCount()}) EXPECT_EQ(from->child(beyond), nullptr);
  for (int i = 0; i < from->childCount(); ++i) {
    QAccessibleInterface* part = from->child(i);
    EXPECT_EQ(from->indexOfChild(part), i);
    EXPECT_EQ(part->parent()->object(), from->object());
    const auto below = Walked(part);
    objects.insert(objects.end(), below.begin(), below.end());
  }
  return objects;
}

TEST_F(Speech, WindowsAreTreesOfTheirControls) {
  StartGame();
  QAccessibleInterface* board = Voice(&Widget(game.GFM->Image1[37]))->parent();
  EXPECT_EQ(board->role(), QAccessible::Grouping);
  EXPECT_EQ(board->text(QAccessible::Name), "Board");
  EXPECT_EQ(board->childCount(), lotCount);
  EXPECT_TRUE(board->rect().contains(Voice(&Widget(game.GFM->Image1[99]))->rect()));
  for (Window* window : game.Windows()) {
    SCOPED_TRACE(window->name());
    Exhibit(*window);
    WindowView& view = View(*window);
    EXPECT_EQ(Voice(&view)->role(), view.IsDialog() ? QAccessible::Dialog : QAccessible::Window);
    const auto objects = Walked(Voice(&view));
    for (ControlWidget* widget : view.widgets()) {
      if (!TakesFocus(widget->control())) continue;
      EXPECT_EQ(std::ranges::count(objects, widget), 1) << widget->control().FullName();
    }
    game.Hide(*window);
    platform.screen.Sync();
  }
}

TEST_F(Speech, ADialogTellsItsTitleAndItsTextsInTheirOrder) {
  StartGame();
  OnceShown(game.ML, [this] {
    EXPECT_EQ(Text(&View(game.ML)), "Mall");
    const std::string texts = Text(&View(game.ML), QAccessible::Description);
    EXPECT_TRUE(texts.starts_with("Property zoned for a Mall. This property has been zone"))
        << texts;
    EXPECT_EQ(Heard(), Texts()) << "that was told with the dialog";
    game.ML->Label2.Caption = "What else ?";
    platform.screen.Sync();
    EXPECT_EQ(Heard(), Texts({"What else ?"}));
    Type(Qt::Key_F2);
    EXPECT_EQ(Heard(), Texts({"Property zoned for a Mall. What else ?"}));
    game.Hide(game.ML);
  });
  Heard();
  game.CurLot = 5;
  game.ShowModal(game.ML);
}

TEST_F(Speech, NewsIsSpokenOnceWhenItChangesOrComesIntoSight) {
  StartGame();
  Heard();
  Control& news = game.GFM->LSHOW;
  const auto after = [&](const char* caption, bool visible = true) {
    news.Caption = caption;
    news.Visible = visible;
    platform.screen.Sync();
    platform.screen.Sync();
    return Heard();
  };
  EXPECT_EQ(after("Lot #  5\n\rOpened "), Texts({"Lot # 5, Opened"}));
  EXPECT_EQ(after("Lot #  5\n\rOpened ", false), Texts());
  EXPECT_EQ(after("Lot #  5\n\rOpened "), Texts({"Lot # 5, Opened"}));
  EXPECT_EQ(after(""), Texts());
  // What is no news is told to whoever asks for it.
  game.GFM->PCredit.Caption = "$5";
  game.GFM->Image1[37].Picture = PictureId::ICF_HILTON;
  platform.screen.Sync();
  EXPECT_EQ(Heard(), Texts());
  EXPECT_EQ(Text(&Widget(game.GFM->Image1[37])), "Lot 37, computer's Hilton");
  Type(Qt::Key_F3);
  ASSERT_EQ(spoken.size(), 1U);
  EXPECT_TRUE(Heard()[0].starts_with("Player's credit, $5. Player's net worth, $"));
}

TEST_F(Speech, HelpersHearOfANewNameAndANewTick) {
  StartGame();
  Exhibit(game.ICF);
  const auto after = [this](const std::function<void()>& change) {
    helpersHeard.clear();
    change();
    platform.screen.Sync();
    return helpersHeard;
  };
  Control& lot = game.GFM->Image1[37];
  Control& box = game.ICF->CKBANK;
  const decltype(helpersHeard) renamed = {{&Widget(lot), QAccessible::NameChanged}};
  const decltype(helpersHeard) ticked = {{&Widget(box), QAccessible::StateChanged}};
  EXPECT_EQ(after([&] { lot.Picture = PictureId::ICF_MALL; }), renamed);
  EXPECT_EQ(after([&] { lot.Caption = "Mall"; }), renamed);
  EXPECT_TRUE(after([&] { lot.SetEnabled(false); }).empty());
  EXPECT_EQ(after([&] { box.SetValue(!box.Value()); }), ticked);
}

TEST_F(Speech, ALetterGoesByItsPlaceOnOtherKeyboardsAndSaysSoIfItFitsNothing) {
  StartGame();
  game.GFM->Image1[42].Picture = PictureId::ICF_MALL;
  ControlWidget& icon = Widget(game.GFM->SUPER);
  const auto type = [&](const QString& printed, quint32 place) {
    icon.setFocus();
    Heard();
    QKeyEvent event(QEvent::KeyPress, 0, Qt::NoModifier, place, 0, 0, printed);
    QCoreApplication::sendEvent(&icon, &event);
  };
  constexpr quint32 placeOfM = 58;
  for (const auto& [printed, place] :
       {std::pair(u"m", 0U), std::pair(u"\u044c", placeOfM), std::pair(u"m", 24U)}) {
    type(QString::fromUtf16(printed), place);
    EXPECT_TRUE(Widget(game.GFM->Image1[42]).hasFocus());
    EXPECT_EQ(Heard(), Texts());
  }
  type("x", 0);
  EXPECT_TRUE(icon.hasFocus());
  EXPECT_EQ(Heard(), Texts{"Nothing here begins with X."});
  type(QString::fromUtf16(u"\u00f6"), 47);
  EXPECT_EQ(Heard(), Texts());
}

TEST_F(Speech, WhatIsSaidGoesToHelpersAsANotificationOfTheProgram) {
  Texts told;
  Announcer announcer([&told](QAccessibleEvent& event) {
    EXPECT_EQ(event.type(), QAccessible::ObjectShow);
    const auto objects = Walked(event.accessibleInterface());
    EXPECT_EQ(objects.size(), 1U) << "it has no parts";
    EXPECT_EQ(Voice(objects[0])->role(), QAccessible::Notification);
    EXPECT_EQ(Voice(objects[0])->parent()->object(), qApp);
    told.push_back(Text(objects[0]));
  });
  for (const char* text : {"One", "Two", "Two"}) announcer.Say(text);
  EXPECT_EQ(told, Texts({"One", "Two", "Two"}));
}

TEST_F(Speech, ATurnIsToldFromBeginningToEnd) {
  StartGame();
  EXPECT_EQ(Heard().back(), "Player, Choose Purchased or open lot to build or buy");
  Type(Qt::Key_Space);  // on the player's lot
  EXPECT_TRUE(Heard().back().starts_with("Property # 0-PU - Not Insured, Property Value is $"));
  Type(Qt::Key_Return, Qt::ControlModifier);
  const auto told = Heard();
  const auto first = std::ranges::find(told, "Computer, Computer making Selection 1 now");
  const auto built = std::ranges::find(told, "Computer Purchased a Hilton on lot 99");
  EXPECT_TRUE(first < built && built < told.end()) << told.size();
  EXPECT_EQ(told.back(), "Player, Choose Purchased or open lot to build or buy");
}

TEST_F(Speech, APressThatOpensADialogReturnsAtOnce) {
  StartGame();
  const auto press = [this](Control& control) {
    Voice(&Widget(control))->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
  };
  press(game.GFM->CMDHELP);
  EXPECT_FALSE(game.ICF->IsShown());
  bool inSetup = false;
  OnceShown(game.ICF, [&] {
    inSetup = true;
    press(game.ICF->OPT1[2]);
    press(game.ICF->CKBANK);
    press(game.GFM->CMDGO);  // which is covered
    press(game.ICF->cmdexit);
  });
  QCoreApplication::processEvents();
  EXPECT_TRUE(inSetup && !game.ICF->IsShown());
  EXPECT_EQ(game.SkillLevel, 2);
  EXPECT_EQ(game.TurnNo, 0);
  EXPECT_TRUE(Voice(&Widget(game.ICF->OPT1[2]))->state().checked);
  EXPECT_FALSE(Voice(&Widget(game.ICF->CKBANK))->state().checked);
}

TEST_F(Speech, AMessageBoxTellsItsTitleAndItsText) {
  const auto box = [] { return qobject_cast<QMessageBox*>(QApplication::activeModalWidget()); };
  Once([box] { return box() != nullptr; },
       [box] {
         EXPECT_EQ(Voice(box())->role(), QAccessible::AlertMessage);
         EXPECT_EQ(Text(box()), "Buy out");
         EXPECT_EQ(Text(box()->findChild<QLabel*>("qt_msgbox_label")), "One\nTwo");
         box()->reject();
       });
  game.MessageBox("One\n\rTwo", MessageStyle::Ok, "Buy out");
}

}  // namespace
}  // namespace zelvo
