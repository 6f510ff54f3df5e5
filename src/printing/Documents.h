#pragma once

#include "core/Store.h"
#include "printing/Druckschicht.h"
#include "printing/Werbung.h"

#include <array>
#include <optional>

// The documents of the print screen. Each records itself and ends its document; what it leaves in the store is told in
// its own file.

/// Ranks anew and prints the ranked participants; as "Ergebnisliste Kombination" if the race has a time-sum file.
/// `club` is the club filter of the ranking: a record number, 0 = nobody passes, nothing = no filter.
void Ergebnisliste(Store &store, Druckschicht &druck, std::optional<int> club);
void Teilnehmerliste(Store &store, Druckschicht &druck);
void AlphabetischeListe(const Store &store, Druckschicht &druck);
void StartlisteZweiterDurchgang(Store &store, Druckschicht &druck);
void NichtInDerWertung(const Store &store, Druckschicht &druck);

/// The three lines that replace place and time.
using UrkundenText = std::array<QString, 3>;
/// The certificate of one participant row.
/// Quirk: certificates rank nothing. Place and time are what the last ranking left, be it of the first run or one club.
void Urkunde(const Store &store, Druckschicht &druck, int row, const std::optional<UrkundenText> &text);

/// What certificate and title page begin with: organisation, logo, line and the name of the race.
void Deckkopf(const Store &store, Druckschicht &druck);

/// The official cover with the facts of the race, the counts and the chosen sponsor banners.
void Titelblatt(const Store &store, Druckschicht &druck, const Werbung &werbung);
