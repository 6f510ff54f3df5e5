#pragma once

#include "core/Store.h"

// The layout of the R file, told once for all who read or write one.

/// Calls `action` with the member of each column of a participant's block, in order.
template <typename Action> void forEachColumn(Action action) {
  using Row = TeilnehmerZeile;
  for (const auto column :
       {&Row::LaeuferNr, &Row::StartNr, &Row::KlasseNr, &Row::VereinNr, &Row::GruppeNr, &Row::Bezahlt})
    action(column);
  action(&Row::Punkte);
  action(&Row::Zeit1);
  action(&Row::ZeitReserve);
  action(&Row::Status1);
  action(&Row::Gast);
  action(&Row::MannschaftNr);
  action(&Row::Zeit2);
  action(&Row::Status2);
  action(&Row::Boarder);
  action(&Row::KlasseGenau);
}

/// Empty lines behind the columns of a block.
inline constexpr int ReserveLines = 7;
