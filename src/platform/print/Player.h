#pragma once

#include "platform/print/Recording.h"

#include <QPageLayout>

class QPagedPaintDevice;
class QPainter;

// The one routine that plays recordings, on paper, into a PDF file and on the screen.

/// A4 in the recording's orientation, without a margin of the device.
QPageLayout pageLayout(const Recording &recording);
/// Plays a page with the painter's unit at 1/1440 inch and its origin at the top left corner of the sheet.
void playPage(const PrintPage &page, QPainter &painter);
/// Plays all pages; false if the device refuses one. Its page layout must be set.
bool play(const Recording &recording, QPagedPaintDevice &device);
