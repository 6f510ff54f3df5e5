#pragma once

#include "platform/Tabelle.h"

/// Positions of the screens, row n for `Form` n; unit: 1440 to the inch. A row of 0 and 0 means "no position".
struct WindowPlaces {
  Tabelle<int, 1, 60> FensterTop{"FensterTop"};
  Tabelle<int, 1, 60> FensterLeft{"FensterLeft"};

  /// Reads both values of each row, made positive; a row with a number beyond 32 bits has no position. Does nothing
  /// without the file.
  void load(const QString &path);
  /// The file of all 60 rows.
  QByteArray bytes() const;
};
