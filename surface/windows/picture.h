#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "surface/picture_id.h"

namespace zelvo {

/// The identity of a picture: the control that owns it at design time. Two controls show the same
/// picture exactly when they hold the same identity, whatever the artwork looks like.
enum class PictureId : unsigned char {
  None,
  ICF_LUND,
  ICF_LOPEN,
  ICF_LDIRT,
  ICF_PLAYER,
  ICF_COMP,
  ICF_GOLF,
  ICF_PARK,
  ICF_CITY,
  ICF_MALL,
  ICF_CREST,
  ICF_SUPER,
  ICF_THRIFTY,
  ICF_QUALITY,
  ICF_BEST,
  ICF_RAMADA,
  ICF_HILTON,
  ICF_ELEC,
  ICF_FIRE,
  ICF_PLANE,
  ICF_PAINT,
  ICF_IRS,
  ICF_MAN1,
  GFM_SUPER,
  GFM_THRIFTY,
  GFM_QUALITY,
  GFM_BEST,
  GFM_RAMADA,
  GFM_HILTON,
  GFM_Rest,
  GFM_Image2,
  GFM_Image3,
  GFM_CMDGO,
  GFM_CMDHELP,
  GFM_CMDEXIT,
  GST_Image2,
  WINX_CMDEXIT,
  HH_CMDEXIT,
  SV_Image1,
  RB_MAN,
  CHN_Image1_0,
  CHN_Image1_1,
  CHN_Image1_2,
  BK_Image1_0,
  BK_Image1_1,
  BK_Image1_2,
  BK_Image1_3,
  BK_Image1_4,
  ABT_Image1,
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
