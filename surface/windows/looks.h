#pragma once

#include "surface/control.h"

/// The colours and text styles of the windows.
namespace zelvo::looks {

using colors::cream;
using colors::ink;
using colors::night;

constexpr Color white = 0xffffff;
constexpr Color face = 0xe9ebee;
constexpr Color playerBlue = colors::accent;
constexpr Color computerRed = 0x8f1f24;
constexpr Color bankTeal = 0x0f6f69;
constexpr Color asphalt = 0x3a3f46;
constexpr Color roadLetters = 0xf4f1e4;
constexpr Color gold = 0xf2cf3a;

/// A heading in white letters on a side's colour.
constexpr Look Heading(Color ground, Align align = Align::Left) {
  return {.ink = white, .ground = ground, .letterHeight = 210, .bold = true, .align = align};
}
/// A name of an amount, in a side's colour.
constexpr Look AmountName(Color ground) {
  return {.ink = white, .ground = ground, .letterHeight = 170};
}
constexpr Look amount = {.ground = white,
                         .letterHeight = 190,
                         .bold = true,
                         .align = Align::Right,
                         .border = Border::Line};
constexpr Look panel = {.ground = face, .align = Align::Center, .border = Border::Raised};
constexpr Look button = {.letterHeight = 190, .align = Align::Center};
constexpr Look text = {.letterHeight = 200};
constexpr Look centred = {.letterHeight = 210, .align = Align::Center};
constexpr Look message = {
    .ground = cream, .letterHeight = 210, .align = Align::Center, .border = Border::Sunken};
constexpr Look street = {.ink = roadLetters,
                         .ground = asphalt,
                         .letterHeight = 130,
                         .bold = true,
                         .align = Align::Center,
                         .border = Border::Road};
constexpr Look avenue = {.ink = roadLetters,
                         .ground = asphalt,
                         .letterHeight = 160,
                         .bold = true,
                         .align = Align::Center,
                         .border = Border::Road,
                         .vertical = true};

}  // namespace zelvo::looks
