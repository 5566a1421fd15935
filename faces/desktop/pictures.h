#pragma once

#include <QPixmap>
#include <QSize>
#include <QString>
#include <map>
#include <set>

#include "surface/windows/picture.h"

class QSvgRenderer;

namespace zelvo {

/// The artwork, drawn from its vectors at the size at which it is shown.
class Pictures {
 public:
  explicit Pictures(QString folder);

  /// The picture of a control, stretched to a size in pixels of the screen; null for none. Pictures
  /// drawn lately are at hand. In place of one whose file is missing or broken stands a frame with
  /// the picture's meaning in words.
  QPixmap Get(PictureId picture, QSize size) const;
  /// The same for any file of the folder; null if it is missing or broken.
  QPixmap Get(const QString& file, QSize size) const;
  /// Width over height of a picture; 0 for none, and for a frame that fits anywhere.
  double Proportion(PictureId picture) const;

 private:
  /// Reads a file. One that is missing or broken is told of on standard error once.
  bool Load(const QString& file, QSvgRenderer& vectors) const;

  QString folder_;
  mutable std::set<QString> unusable_;               // files
  mutable std::map<PictureId, double> proportions_;  // as far as they were asked for
};

}  // namespace zelvo
