#pragma once

#include <QRect>
#include <QSizeF>

namespace zelvo {

/// The largest scale up to `wanted` at which a window of the design size fits into the room.
double ScaleThatFits(QSizeF design, QSize room, double wanted);

/// A rectangle moved by as little as it takes to lie within the room; its top left corner does if
/// the rest is too large.
QRect MovedInto(QRect room, QRect place);

/// A rectangle moved by as little as it takes to lie within the room and beside a spot that is to
/// be seen; over the spot if there is no room beside it.
QRect MovedBeside(const QRect& spot, QRect room, QRect place);

}  // namespace zelvo
