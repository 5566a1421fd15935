#include "faces/desktop/drawing.h"

#include <QFontDatabase>
#include <QFontInfo>
#include <QFontMetricsF>
#include <QStringList>
#include <QTextLayout>
#include <algorithm>
#include <array>
#include <cmath>

namespace zelvo {
namespace {

// The windows bring their own colours, so that a light and a dark desktop show the same game.
constexpr QRgb Solid(Color color) { return 0xff000000U | static_cast<QRgb>(color); }
constexpr QRgb outline = Solid(colors::outline);
constexpr QRgb buttonTop = 0xffffffff;
constexpr QRgb buttonFoot = Solid(colors::buttonFoot);
constexpr QRgb buttonHovered = Solid(colors::buttonHovered);
constexpr QRgb buttonPressed = Solid(colors::buttonPressed);
constexpr QRgb accent = Solid(colors::accent);

double AtLeastOne(double pixels) { return std::max(1.0, pixels); }

bool HasTabularFigures(const QFont& font) {
  const QFontMetricsF metrics(font);
  const double width = metrics.horizontalAdvance('0');
  const QString figures = QStringLiteral("123456789");
  return std::all_of(figures.begin(), figures.end(), [&](QChar figure) {
    return std::abs(metrics.horizontalAdvance(figure) - width) < 0.01;
  });
}

/// The desktop's own family if its figures are of one width, else one whose figures are.
QString ChooseFamily() {
  QFont font = QFontDatabase::systemFont(QFontDatabase::GeneralFont);
  font.setPixelSize(100);
  const QStringList candidates = {font.family(), "Noto Sans", "DejaVu Sans", "Liberation Sans"};
  for (const QString& family : candidates) {
    font.setFamily(family);
    if (QFontInfo(font).family() == family && HasTabularFigures(font)) return family;
  }
  return candidates.front();
}

int AlignmentOf(const Look& look) {
  static constexpr std::array<Qt::AlignmentFlag, 3> horizontal = {Qt::AlignLeft, Qt::AlignHCenter,
                                                                  Qt::AlignRight};
  return horizontal.at(static_cast<std::size_t>(look.align)) | Qt::AlignVCenter;
}

QPen Line(QRgb color, double width) {
  QPen pen(QColor::fromRgba(color), width);
  pen.setJoinStyle(Qt::MiterJoin);
  pen.setCapStyle(Qt::FlatCap);
  return pen;
}

/// A frame that lies wholly within the area.
void DrawFrame(QPainter& painter, const QRectF& area, QRgb color, double width) {
  painter.setPen(Line(color, width));
  painter.setBrush(Qt::NoBrush);
  const double half = width / 2;
  painter.drawRect(area.adjusted(half, half, -half, -half));
}

/// Two edges in light and two in shade.
void DrawBevel(QPainter& painter, const QRectF& area, bool raised, double unit) {
  const double width = AtLeastOne(18 * unit);
  const double half = width / 2;
  const QRectF frame = area.adjusted(half, half, -half, -half);
  constexpr QRgb light = 0xb3ffffff;
  constexpr QRgb shade = 0x59000000;
  painter.setPen(Line(raised ? light : shade, width));
  painter.drawLine(frame.topLeft(), frame.topRight());
  painter.drawLine(frame.topLeft(), frame.bottomLeft());
  painter.setPen(Line(raised ? shade : light, width));
  painter.drawLine(frame.bottomLeft(), frame.bottomRight());
  painter.drawLine(frame.topRight(), frame.bottomRight());
}

void DrawKerbs(QPainter& painter, const QRectF& area, bool vertical, double unit) {
  const double width = AtLeastOne(12 * unit);
  const double half = width / 2;
  const QRectF road = area.adjusted(half, half, -half, -half);
  painter.setPen(Line(Solid(colors::kerb), width));
  if (vertical) {
    painter.drawLine(road.topLeft(), road.bottomLeft());
    painter.drawLine(road.topRight(), road.bottomRight());
  } else {
    painter.drawLine(road.topLeft(), road.topRight());
    painter.drawLine(road.bottomLeft(), road.bottomRight());
  }
}

QStringList LinesOf(const QString& paragraph, const QFont& font, double width) {
  QStringList lines;
  QTextLayout layout(paragraph, font);
  layout.beginLayout();
  for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
    line.setLineWidth(width);
    lines += paragraph.mid(line.textStart(), line.textLength()).trimmed();
  }
  layout.endLayout();
  return lines;
}

}  // namespace

QRect Mapping::Pixels(const Box& box) const {
  const auto x = [this](int twips) { return static_cast<int>(std::lround(left + twips * unit)); };
  const auto y = [this](int twips) { return static_cast<int>(std::lround(top + twips * unit)); };
  return {QPoint(x(box.left), y(box.top)),
          QPoint(x(box.left + box.width) - 1, y(box.top + box.height) - 1)};
}

QString ScreenText(const std::string& caption) {
  QString text = QString::fromStdString(caption);
  text.remove('\r');
  return text;
}

QFont ScreenFont(int pixels, bool bold) {
  static const QString family = ChooseFamily();
  QFont font(family);
  font.setPixelSize(pixels);
  font.setBold(bold);
  return font;
}

FittedText Fit(const QString& text, const Look& look, QSizeF area, double unit) {
  constexpr int smallest = 1;  // which can be four pixels of a dense screen
  if (look.vertical) area.transpose();
  FittedText fitted{text, {}, AlignmentOf(look) | Qt::TextWordWrap, {}};
  int pixels = std::max(smallest, static_cast<int>(std::lround(look.letterHeight * unit)));
  while (true) {
    fitted.font = ScreenFont(pixels, look.bold);
    const QRectF all(QPointF(), area);
    fitted.bounds = QFontMetricsF(fitted.font).boundingRect(all, fitted.flags, text);
    if (pixels == smallest || all.contains(fitted.bounds)) return fitted;
    pixels = std::max(smallest, pixels - std::max(1, pixels / 20));
  }
}

QString InEvenLines(const QString& text, const QFont& font, double width) {
  constexpr double step = 4;
  QStringList all;
  for (const QString& paragraph : text.split('\n')) {
    QStringList lines = LinesOf(paragraph, font, width);
    double narrower = width;
    while ((narrower -= step) > 0) {
      const QStringList next = LinesOf(paragraph, font, narrower);
      if (next.size() > lines.size()) break;
      lines = next;
    }
    all += lines;
  }
  return all.join('\n');
}

QColor ToColor(Color color) {
  return color == transparent ? QColor(Qt::transparent) : QColor::fromRgb(static_cast<QRgb>(color));
}

void DrawGround(QPainter& painter, const QRectF& area, const Look& look, double unit) {
  if (look.ground != transparent) painter.fillRect(area, ToColor(look.ground));
  switch (look.border) {
    case Border::None:
      break;
    case Border::Line:
      DrawFrame(painter, area, 0x66000000, AtLeastOne(10 * unit));
      break;
    case Border::Sunken:
    case Border::Raised:
      DrawBevel(painter, area, look.border == Border::Raised, unit);
      break;
    case Border::Road:
      DrawKerbs(painter, area, look.vertical, unit);
      break;
  }
}

void DrawLanes(QPainter& painter, const QRectF& area, bool vertical, double unit) {
  const double dash = 110 * unit;
  const double width = AtLeastOne(14 * unit);
  const double reach = (vertical ? area.height() : area.width()) / 2;
  QPen pen = Line(Solid(colors::lane), width);
  pen.setDashPattern({dash / width, dash / width});
  painter.setPen(pen);
  // From the middle to both ends, so that the halves look alike.
  for (const double side : {-reach, reach}) {
    const QPointF way = vertical ? QPointF(0, side) : QPointF(side, 0);
    painter.drawLine(area.center(), area.center() + way);
  }
}

void DrawText(QPainter& painter, const QRectF& area, const FittedText& text, const Look& look) {
  painter.save();
  painter.setFont(text.font);
  painter.setPen(ToColor(look.ink));
  QRectF place = area;
  if (look.vertical) {
    painter.translate(area.left(), area.bottom());
    painter.rotate(-90);
    place = QRectF(QPointF(), area.size().transposed());
  }
  if (look.border == Border::Road) {
    const double clear = text.font.pixelSize() / 2.0;
    const QRectF name = text.bounds.translated(place.topLeft()).adjusted(-clear, 0, clear, 0);
    const double kerbs = place.height() / 4;
    painter.fillRect(name & place.adjusted(0, kerbs, 0, -kerbs), ToColor(look.ground));
  }
  painter.drawText(place, text.flags, text.text);
  painter.restore();
}

void DrawButton(QPainter& painter, const QRectF& area, Standing standing, double unit) {
  const double radius = 60 * unit;
  const double line = AtLeastOne(12 * unit);
  const QRectF body = area.adjusted(line, line, -line, -line);
  QLinearGradient light(body.topLeft(), body.bottomLeft());
  light.setColorAt(0, QColor::fromRgba(standing.pressed ? buttonPressed : buttonTop));
  light.setColorAt(
      1, QColor::fromRgba(standing.pressed || !standing.hovered ? buttonFoot : buttonHovered));
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setBrush(light);
  painter.setPen(Line(standing.hovered && standing.enabled ? accent : outline, line));
  painter.drawRoundedRect(body, radius, radius);
}

void DrawMark(QPainter& painter, const QRectF& area, bool round, bool ticked, Standing standing,
              double unit) {
  const double line = AtLeastOne(16 * unit);
  const double radius = round ? area.width() / 2 : 30 * unit;
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setBrush(QColor::fromRgba(standing.pressed ? buttonPressed : buttonTop));
  painter.setPen(Line(standing.hovered && standing.enabled ? accent : outline, line));
  painter.drawRoundedRect(area.adjusted(line, line, -line, -line), radius, radius);
  if (!ticked) return;
  if (round) {
    const double inset = area.width() * 0.28;
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor::fromRgba(accent));
    painter.drawEllipse(area.adjusted(inset, inset, -inset, -inset));
    return;
  }
  const auto at = [&area](double x, double y) {
    return area.topLeft() + QPointF(x * area.width(), y * area.height());
  };
  painter.setPen(Line(accent, area.width() * 0.14));
  painter.setBrush(Qt::NoBrush);
  painter.drawPolyline(QPolygonF{{at(0.24, 0.52), at(0.43, 0.72), at(0.78, 0.28)}});
}

void DrawHover(QPainter& painter, const QRectF& area, Standing standing, double unit) {
  if (!standing.hovered || !standing.enabled) return;
  painter.fillRect(area, QColor::fromRgba(standing.pressed ? 0x47000000 : 0x38ffffff));
  DrawFrame(painter, area, 0xccffffff, AtLeastOne(20 * unit));
}

void DrawFocus(QPainter& painter, const QRectF& area, double unit) {
  const double width = AtLeastOne(22 * unit);
  DrawFrame(painter, area, Solid(colors::night), width);
  DrawFrame(painter, area.adjusted(width, width, -width, -width), Solid(colors::focus),
            width * 1.5);
}

void DrawInHand(QPainter& painter, const QRectF& area, double unit) {
  const double width = AtLeastOne(30 * unit);
  DrawFrame(painter, area, Solid(colors::inHand), width);
  DrawFrame(painter, area.adjusted(width, width, -width, -width), 0x80000000U | colors::night,
            AtLeastOne(8 * unit));
}

}  // namespace zelvo
