#include "core/Participants.h"

#include "core/RecordFiles.h"

std::optional<LaeuferSatz> athleteOf(const Store &store, const TeilnehmerZeile &participant) {
  if (participant.LaeuferNr == 0)
    return {};
  LaeuferSatz athlete = LaeuferLesen(store, participant.LaeuferNr);
  return athlete.Name.isEmpty() ? std::nullopt : std::optional(std::move(athlete));
}

qint64 statusSum(const TeilnehmerZeile &participant) {
  return qint64(participant.Status1) + participant.Status2;
}

int startClub(const LaeuferSatz &athlete, const TeilnehmerZeile &participant) {
  switch (participant.VereinNr) {
  case 1:
    return athlete.Verein1;
  case 2:
    return athlete.Verein2;
  case 3:
    return athlete.Verein3;
  default:
    return 0;
  }
}

std::optional<VereinSatz> clubOf(const Store &store, const LaeuferSatz &athlete, const TeilnehmerZeile &participant) {
  const int club = startClub(athlete, participant);
  if (club < 1 || club > store.VereinAnzahl)
    return {};
  return VereinLesen(store, club);
}
