#pragma once

#include "core/Store.h"

#include <optional>

// Searches over the names of the whole register, quick enough for 30,000 of them while the screen is idle.

struct SimilarName {
  int athlete;
  /// The very same name; else one that differs by capitals, marks, blanks or one letter.
  bool same;
};

/// The athlete whose name is that of `own` or nearly so; one of the very same name goes first.
std::optional<SimilarName> similarName(const Store &store, const QString &name, int own);
/// Whether the name of any athlete begins so, whatever the capitals and marks.
bool anyNameBegins(const Store &store, const QString &beginning);
/// Whether a record without a name can be used anew.
bool hasFreeRecord(const Store &store);
/// How many athletes have a name.
int namedAthletes(const Store &store);
