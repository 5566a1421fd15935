#pragma once

#include <QPixmap>
#include <QSize>
#include <QString>
#include <map>

#include "surface/picture.h"

namespace zelvo {

/// The artwork, drawn from its vectors at the size at which it is shown.
class Pictures {
 public:
  explicit Pictures(QString folder) : folder_(std::move(folder)) {}

  /// The picture of a control, stretched to a size in pixels of the screen; null for none. Pictures
  /// drawn lately are at hand.
  QPixmap Get(PictureId picture, QSize size) const;
  /// The same for any file of the folder.
  QPixmap Get(const QString& file, QSize size) const;
  /// Width over height of a picture; 0 for none.
  double Proportion(PictureId picture) const;

 private:
  QString folder_;
  mutable std::map<PictureId, double> proportions_;  // as far as they were asked for
};

}  // namespace zelvo
