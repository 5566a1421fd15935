#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "surface/picture_id.h"
#include "surface/windows/legend.h"

// The pictures besides those of the legend: identity, owner, what the picture shows for those who
// do not see it.
#define ZELVO_PICTURES(PICTURE)                                                       \
  PICTURE(GFM_SUPER, "GFM.SUPER", "player's Super Saver")                             \
  PICTURE(GFM_THRIFTY, "GFM.THRIFTY", "player's Thrifty")                             \
  PICTURE(GFM_QUALITY, "GFM.QUALITY", "player's Quality Inn")                         \
  PICTURE(GFM_BEST, "GFM.BEST", "player's Best Western")                              \
  PICTURE(GFM_RAMADA, "GFM.RAMADA", "player's Ramada")                                \
  PICTURE(GFM_HILTON, "GFM.HILTON", "player's Hilton")                                \
  PICTURE(GFM_Rest, "GFM.Rest", "player's restaurant")                                \
  PICTURE(GFM_Image2, "GFM.Image2", "player's emblem")                                \
  PICTURE(GFM_Image3, "GFM.Image3", "computer's emblem")                              \
  PICTURE(GFM_CMDGO, "GFM.CMDGO", "arrow and green light")                            \
  PICTURE(GFM_CMDHELP, "GFM.CMDHELP", "cogwheel with a question mark")                \
  PICTURE(GFM_CMDEXIT, "GFM.CMDEXIT", "open door")                                    \
  PICTURE(GST_Image2, "GST.Image2", "the name Zelvo over a street of hotels")         \
  PICTURE(WINX_CMDEXIT, "WINX.CMDEXIT", "trophy")                                     \
  PICTURE(HH_CMDEXIT, "HH.CMDEXIT", "closed book")                                    \
  PICTURE(SV_Image1, "SV.Image1", "scaffold and toolbox")                             \
  PICTURE(RB_MAN, "RB.MAN", "stern chairman of the zoning board")                     \
  PICTURE(CHN_Image1_0, "CHN.Image1(0)", "face down")                                 \
  PICTURE(CHN_Image1_1, "CHN.Image1(1)", "face down")                                 \
  PICTURE(CHN_Image1_2, "CHN.Image1(2)", "face down")                                 \
  PICTURE(BK_Image1_0, "BK.Image1(0)", "banker behind his grille")                    \
  PICTURE(BK_Image1_1, "BK.Image1(1)", "customer asks the banker for money")          \
  PICTURE(BK_Image1_2, "BK.Image1(2)", "banker reads the books")                      \
  PICTURE(BK_Image1_3, "BK.Image1(3)", "banker at the open vault")                    \
  PICTURE(BK_Image1_4, "BK.Image1(4)", "banker stamps a paper beside a bag of money") \
  PICTURE(ABT_Image1, "ABT.Image1", "hotel with a golden crown")

namespace zelvo {

/// The identity of a picture: the control that owns it at design time. Two controls show the same
/// picture exactly when they hold the same identity, whatever the artwork looks like.
enum class PictureId : unsigned char {
  None,
#define ICON(name, tag, meaning, hover) ICF_##name,
  ZELVO_LEGEND(ICON)
#undef ICON
#define PICTURE(name, owner, meaning) name,
      ZELVO_PICTURES(PICTURE)
#undef PICTURE
          Count
};

/// The control that owns the picture, as in "ICF.LUND" or "BK.Image1(3)"; empty for None.
std::string_view PictureOwner(PictureId picture);

/// The picture that a control owns; nothing if no picture has that owner.
std::optional<PictureId> PictureOwnedBy(std::string_view owner);

/// What the picture shows, in words for those who do not see it, as in "player's Hilton"; empty for
/// None.
std::string_view PictureMeaning(PictureId picture);

/// The file of the artwork, as in "icf-lund.svg" or "bk-image1-3.svg"; empty for None.
std::string PictureFile(PictureId picture);

}  // namespace zelvo
