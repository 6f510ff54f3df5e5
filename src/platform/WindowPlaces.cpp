#include "platform/WindowPlaces.h"

#include "platform/Numbers.h"
#include "platform/TextFile.h"

#include <algorithm>
#include <cstdlib>
#include <limits>

namespace {

// The file ends early without harm: what it does not tell stays.
qint64 nextPlace(TextReader &file, int present) {
  return file.atEnd() ? present : std::abs(wholeNumber(file.field()));
}

} // namespace

void WindowPlaces::load(const QString &path) {
  auto file = TextReader::ifThere(path);
  if (!file)
    return;
  for (int row = 1; row <= 60; ++row) {
    const qint64 top = nextPlace(*file, FensterTop[row]), left = nextPlace(*file, FensterLeft[row]);
    const bool fits = std::max(top, left) <= std::numeric_limits<int>::max();
    FensterTop[row] = fits ? int(top) : 0;
    FensterLeft[row] = fits ? int(left) : 0;
  }
}

QByteArray WindowPlaces::bytes() const {
  TextWriter file;
  for (int row = 1; row <= 60; ++row) {
    file.number(FensterTop[row]);
    file.number(FensterLeft[row]);
  }
  return file.bytes();
}
