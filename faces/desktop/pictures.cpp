#include "faces/desktop/pictures.h"

#include <QFile>
#include <QLoggingCategory>
#include <QPainter>
#include <QPixmapCache>
#include <QSvgRenderer>

#include "faces/desktop/drawing.h"
#include "faces/standard_streams.h"

namespace zelvo {
namespace {

QString FileOf(PictureId picture) { return QString::fromStdString(PictureFile(picture)); }

QPixmap DrawMeaning(PictureId picture, QSize size) {
  constexpr Look look = {.ground = 0xffffff, .align = Align::Center, .border = Border::Line};
  const double unit =
      size.height() / 4.0 / look.letterHeight;  // four lines, or more that are smaller
  const std::string_view meaning = PictureMeaning(picture);
  QPixmap pixmap(size);
  const QRectF area = pixmap.rect();
  QPainter painter(&pixmap);
  DrawGround(painter, area, look, unit);
  const double margin = size.height() / 16.0;
  const QRectF inner = area.adjusted(margin, margin, -margin, -margin);
  DrawText(painter, inner, Fit(ScreenText(std::string(meaning)), look, inner.size(), unit), look);
  return pixmap;
}

}  // namespace

Pictures::Pictures(QString folder) : folder_(std::move(folder)) {
  QLoggingCategory::setFilterRules("qt.svg=false");  // what is wrong with a file is told by us
}

QPixmap Pictures::Get(PictureId picture, QSize size) const {
  if (picture == PictureId::None || size.isEmpty()) return {};
  const QPixmap pixmap = Get(FileOf(picture), size);
  return pixmap.isNull() ? DrawMeaning(picture, size) : pixmap;
}

QPixmap Pictures::Get(const QString& file, QSize size) const {
  if (size.isEmpty()) return {};
  const QString path = folder_ + '/' + file;
  const QString key = QStringLiteral("%1 %2 %3").arg(path).arg(size.width()).arg(size.height());
  QPixmap pixmap;
  if (QPixmapCache::find(key, &pixmap)) return pixmap;
  QSvgRenderer vectors;
  if (!Load(file, vectors)) return {};
  vectors.setAspectRatioMode(Qt::IgnoreAspectRatio);
  pixmap = QPixmap(size);
  pixmap.fill(Qt::transparent);
  QPainter painter(&pixmap);
  vectors.render(&painter);
  painter.end();
  QPixmapCache::insert(key, pixmap);
  return pixmap;
}

double Pictures::Proportion(PictureId picture) const {
  if (picture == PictureId::None) return 0;
  const auto [known, isNew] = proportions_.try_emplace(picture, 0);
  if (isNew) {
    QSvgRenderer vectors;
    if (!Load(FileOf(picture), vectors)) return 0;
    known->second = vectors.viewBoxF().width() / vectors.viewBoxF().height();
  }
  return known->second;
}

bool Pictures::Load(const QString& file, QSvgRenderer& vectors) const {
  if (unusable_.contains(file)) return false;
  QFile source(folder_ + '/' + file);
  const bool isOpen = source.open(QIODevice::ReadOnly);
  if (isOpen && vectors.load(source.readAll()) && !vectors.viewBoxF().isEmpty()) return true;
  unusable_.insert(file);
  const QString why = isOpen ? QStringLiteral("it is no SVG picture") : source.errorString();
  Complain("zelvo", (source.fileName() + " cannot be shown: " + why).toStdString(), failure);
  return false;
}

}  // namespace zelvo
