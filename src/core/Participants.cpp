#include "core/Participants.h"

#include "core/RecordFiles.h"

bool readAthlete(Store &store, const TeilnehmerZeile &participant) {
  if (participant.LaeuferNr == 0)
    return false;
  store.LaeuferIdx = participant.LaeuferNr;
  LaeuferLesen(store);
  return !store.Laeufer.Name.isEmpty();
}

qint64 statusSum(const TeilnehmerZeile &participant) {
  return qint64(participant.Status1) + participant.Status2;
}

int startClub(const Store &store, const TeilnehmerZeile &participant) {
  switch (participant.VereinNr) {
  case 1:
    return store.Laeufer.Verein1;
  case 2:
    return store.Laeufer.Verein2;
  case 3:
    return store.Laeufer.Verein3;
  default:
    return 0;
  }
}

bool readClub(Store &store, const TeilnehmerZeile &participant) {
  const int club = startClub(store, participant);
  if (club < 1 || club > store.VereinAnzahl)
    return false;
  store.VereinIdx = club;
  VereinLesen(store);
  return true;
}
