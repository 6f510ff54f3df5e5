#pragma once

#include "evaluation/TeamEvaluation.h"
#include "printing/Druckschicht.h"

/// What the list of units shows: how they were ranked, and the lines of the units in order.
struct TeamListe {
  Wertung wertung;
  QStringList einheiten;
};

/// Prints the units of the open race, each a grey band with place, name and value, and its members beneath.
/// `mitglieder` chooses line i of the units (from 0) on the screen and gives the lines of its members. A participant
/// whose time made a "Zeitsumme der besten" is set bold.
void Mannschaftsliste(const Store &store, Druckschicht &druck, const TeamListe &liste,
                      const std::function<QStringList(int line)> &mitglieder);
