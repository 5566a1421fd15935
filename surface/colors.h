#pragma once

namespace zelvo {

/// A colour as 0xRRGGBB, or `transparent`.
using Color = int;
constexpr Color transparent = -1;

}  // namespace zelvo

/// The colours that every face draws with. The page's style sheet and manifest are filled in from
/// these lines (`make_site.py`), so each stands by itself.
namespace zelvo::colors {

constexpr Color ink = 0x1d2530;
constexpr Color ground = 0xd7d9dc;  // of a window
constexpr Color cream = 0xfbf6e9;   // of a message
constexpr Color accent = 0x1f5fbf;
constexpr Color outline = 0x6f7883;  // of what can be pressed

constexpr Color buttonFoot = 0xdfe3e8;
constexpr Color buttonHovered = 0xe8f1ff;
constexpr Color buttonPressed = 0xc3ccd6;

// The frames of what the keyboard is on and of what the player has in hand.
constexpr Color focus = 0xffb000;
constexpr Color inHand = 0xffd23f;

constexpr Color kerb = 0x7d848d;
constexpr Color lane = 0xe3c75a;

constexpr Color night = 0x10294f;
constexpr Color dusk = 0x1d3d70;      // from which a title bar falls to night
constexpr Color midnight = 0x0a1a33;  // around the windows

}  // namespace zelvo::colors
