#include "faces/desktop/placing.h"

#include <algorithm>
#include <optional>

namespace zelvo {

double ScaleThatFits(QSizeF design, QSize room, double wanted) {
  return std::min({wanted, room.width() / design.width(), room.height() / design.height()});
}

QRect MovedInto(QRect room, QRect place) {
  place.moveRight(std::min(place.right(), room.right()));
  place.moveBottom(std::min(place.bottom(), room.bottom()));
  place.moveLeft(std::max(place.left(), room.left()));
  place.moveTop(std::max(place.top(), room.top()));
  return place;
}

QRect MovedBeside(const QRect& spot, QRect room, QRect place) {
  place = MovedInto(room, place);
  if (!place.intersects(spot)) return place;
  std::optional<QPoint> shortest;
  for (const QPoint way :
       {QPoint(spot.right() + 1 - place.left(), 0), QPoint(spot.left() - 1 - place.right(), 0),
        QPoint(0, spot.bottom() + 1 - place.top()), QPoint(0, spot.top() - 1 - place.bottom())}) {
    if (!room.contains(place.translated(way))) continue;
    if (!shortest || way.manhattanLength() < shortest->manhattanLength()) shortest = way;
  }
  return place.translated(shortest.value_or(QPoint()));
}

}  // namespace zelvo
