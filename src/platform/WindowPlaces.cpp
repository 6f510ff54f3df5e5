#include "platform/WindowPlaces.h"

#include "platform/Files.h"
#include "platform/TextFile.h"

#include <QFile>

#include <algorithm>
#include <cstdlib>
#include <limits>

void WindowPlaces::load(const QString &path) {
  if (!QFile::exists(path))
    return;
  TextReader file(path);
  for (int row = 1; row <= 60; ++row) {
    for (int *value : {&FensterTop[row], &FensterLeft[row]}) {
      file.numberInto(*value);
      *value = std::abs(std::max(*value, -std::numeric_limits<int>::max()));
    }
  }
}

void WindowPlaces::save(const QString &path) const {
  TextWriter file;
  for (int row = 1; row <= 60; ++row) {
    file.number(FensterTop[row]);
    file.number(FensterLeft[row]);
  }
  writeFile(path, file.bytes());
}
