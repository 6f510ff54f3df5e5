#pragma once

#include <QByteArray>
#include <QString>

/// The one place between texts in memory and Windows-1252 on the disk. All 256 byte values survive a round trip.
QString fromCodePage(QByteArrayView bytes);
/// Characters outside the code page become "?".
QByteArray toCodePage(const QString &text);
/// A field of a record: cut at `width` bytes, or filled with blanks on the right.
QByteArray toField(const QString &text, int width);
