#include "faces/desktop/pictures.h"

#include <QPainter>
#include <QPixmapCache>
#include <QSvgRenderer>

namespace zelvo {
namespace {

QString FileOf(PictureId picture) { return QString::fromStdString(PictureFile(picture)); }

}  // namespace

QPixmap Pictures::Get(PictureId picture, QSize size) const {
  return picture == PictureId::None ? QPixmap() : Get(FileOf(picture), size);
}

QPixmap Pictures::Get(const QString& file, QSize size) const {
  if (size.isEmpty()) return {};
  const QString path = folder_ + '/' + file;
  const QString key = QStringLiteral("%1 %2 %3").arg(path).arg(size.width()).arg(size.height());
  QPixmap pixmap;
  if (QPixmapCache::find(key, &pixmap)) return pixmap;
  QSvgRenderer vectors(path);
  if (!vectors.isValid()) return {};
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
    const QSizeF size = QSvgRenderer(folder_ + '/' + FileOf(picture)).viewBoxF().size();
    if (!size.isEmpty()) known->second = size.width() / size.height();
  }
  return known->second;
}

}  // namespace zelvo
