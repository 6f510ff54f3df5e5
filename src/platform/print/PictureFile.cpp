#include "platform/print/PictureFile.h"

#include <QFileInfo>
#include <QImageReader>

namespace {

/// What the reader may take for one picture; its own limit refuses those of a good camera.
constexpr int MostMegabytes = 1024;

// A pipe or a device in the picture's place would hold the program up.
bool isOrdinary(const QString &path) {
  return QFileInfo(path).isFile();
}

} // namespace

QSize pictureSize(const QString &path) {
  return isOrdinary(path) ? QImageReader(path).size() : QSize();
}

QImage readPicture(const QString &path, QSize enough) {
  if (!isOrdinary(path))
    return {};
  QImageReader::setAllocationLimit(MostMegabytes);
  QImageReader reader(path);
  const QSize natural = reader.size();
  if (natural.width() > enough.width() && natural.height() > enough.height())
    reader.setScaledSize(enough);
  return reader.read();
}
