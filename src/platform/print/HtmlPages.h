#pragma once

#include "platform/print/Recording.h"

/// The pages of a document as drawings in a web page, each text where it is on paper.
QString pagesAsDrawings(const Recording &recording);
/// A picture as the address of itself, to stand inside a page.
QString pictureAsText(const QImage &picture);
