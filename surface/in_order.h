#pragma once

#include <cstddef>

#include "surface/member.h"

namespace zelvo {

/// True if each row of a table stands at the place that its key, a value of an enumeration, names:
/// then a value finds its row without a search.
template <class Rows, class Row, class Key>
constexpr bool InOrder(const Rows& rows, Member<Key, Row> key) {
  std::size_t place = 0;
  for (const Row& row : rows) {
    if (static_cast<std::size_t>(row.*key) != place++) return false;
  }
  return true;
}

}  // namespace zelvo
