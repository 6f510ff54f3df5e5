#pragma once

#include <QImage>

// Pictures of any size: what paper and screens do not show of them is never held in memory.

/// Pixels of the picture as the file states them; invalid if it is no picture.
QSize pictureSize(const QString &path);
/// The picture, stretched to `enough` pixels where it has more of them in both directions. Null if it cannot be read.
QImage readPicture(const QString &path, QSize enough);
