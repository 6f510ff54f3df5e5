#include "platform/print/PictureFile.h"

#include <QImageReader>

namespace {

/// What the reader may take for one picture; its own limit refuses those of a good camera.
constexpr int MostMegabytes = 1024;

} // namespace

QSize pictureSize(const QString &path) {
  return QImageReader(path).size();
}

QImage readPicture(const QString &path, QSize enough) {
  QImageReader::setAllocationLimit(MostMegabytes);
  QImageReader reader(path);
  const QSize natural = reader.size();
  if (natural.width() > enough.width() && natural.height() > enough.height())
    reader.setScaledSize(enough);
  return reader.read();
}
