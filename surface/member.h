#pragma once

namespace zelvo {

/// Which member of a structure, as a table or a call names it: `Member<Control, BKWindow>`.
template <class T, class Class>
using Member = T Class::*;

}  // namespace zelvo
