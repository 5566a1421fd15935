#pragma once

#include <QColor>
#include <QFont>
#include <QPainter>
#include <QRectF>
#include <QString>

#include "surface/control.h"

namespace zelvo {

/// Where the twips of a window lie on the widget.
struct Mapping {
  double unit = 1.0 / 15;  ///< pixels per twip; 1/15 is the design size at 96 dpi
  double left = 0;         ///< of the contents, pixels
  double top = 0;          ///< of the contents, pixels

  /// Neighbours that share an edge in twips share it in pixels.
  QRect Pixels(const Box& box) const;
};

/// A text at the size at which it fits.
struct FittedText {
  QString text;
  QFont font;
  int flags = 0;
  QRectF bounds;  ///< what it takes of the area, lines broken
};

/// A caption of the game for the screen: its line breaks are single ones there.
QString ScreenText(const std::string& caption);

/// The font of all windows, `pixels` high. Its figures are of one width, so that amounts stand
/// still and line up.
QFont ScreenFont(int pixels, bool bold);

/// Sets a text into an area from (0, 0) on: in the size of the look, or as much smaller as it
/// takes to show all of it.
FittedText Fit(const QString& text, const Look& look, QSizeF area, double unit);

/// The text with line breaks that keep its lines within a width and make them about equally long,
/// so that no sign stands alone on the last one.
QString InEvenLines(const QString& text, const QFont& font, double width);

QColor ToColor(Color color);

/// What lies behind a control's text or picture: the ground and the border of its look.
void DrawGround(QPainter& painter, const QRectF& area, const Look& look, double unit);
/// The dashed line between the lanes of a street.
void DrawLanes(QPainter& painter, const QRectF& area, bool vertical, double unit);
/// The name of a street stands on a patch that interrupts the lanes.
void DrawText(QPainter& painter, const QRectF& area, const FittedText& text, const Look& look);

/// How a control that can be clicked stands at the moment.
struct Standing {
  bool enabled = true;
  bool hovered = false;
  bool pressed = false;
};

void DrawButton(QPainter& painter, const QRectF& area, Standing standing, double unit);
/// The mark before the text of a check box or an option.
void DrawMark(QPainter& painter, const QRectF& area, bool round, bool ticked, Standing standing,
              double unit);
/// A light over a picture or label under the mouse.
void DrawHover(QPainter& painter, const QRectF& area, Standing standing, double unit);
/// The frame of the keyboard's focus.
void DrawFocus(QPainter& painter, const QRectF& area, double unit);
/// The quiet frame of what the player has in hand.
void DrawInHand(QPainter& painter, const QRectF& area, double unit);

}  // namespace zelvo
