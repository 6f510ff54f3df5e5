#include "printing/SortierListe.h"

#include "core/Participants.h"
#include "platform/Numbers.h"
#include "platform/SortedLines.h"

QStringList SortierListe(Store &store, const std::function<QString(int row)> &key) {
  SortedLines lines;
  for (int row = 1; row <= 1000; ++row) {
    if (!readAthlete(store, store.Teilnehmer[row]))
      continue;
    const QString text = key(row);
    if (!text.isNull())
      lines.add(text + QStringLiteral("   ") + plainText(row));
  }
  return lines.take();
}

int sortierReihe(const QString &line) {
  return rowAtEnd(line, 4);
}
