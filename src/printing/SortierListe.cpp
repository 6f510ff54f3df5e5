#include "printing/SortierListe.h"

#include "core/Participants.h"
#include "platform/Numbers.h"
#include "platform/SortedLines.h"

QStringList SortierListe(const Store &store, const std::function<QString(int row, const LaeuferSatz &athlete)> &key) {
  SortedLines lines;
  for (const int row : store.Teilnehmer.rows()) {
    const auto athlete = athleteOf(store, store.Teilnehmer[row]);
    if (!athlete)
      continue;
    const QString text = key(row, *athlete);
    if (!text.isNull())
      lines.add(text + QStringLiteral("   ") + plainText(row));
  }
  return lines.take();
}
