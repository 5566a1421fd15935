#pragma once

namespace zelvo {

/// The identity of a picture. The windows say which there are; 0 is none.
enum class PictureId : unsigned char;

}  // namespace zelvo
