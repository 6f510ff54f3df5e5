#include "raceprep/RaceCopy.h"

#include "core/ParticipantFile.h"
#include "core/RaceFiles.h"
#include "core/RecordFiles.h"
#include "platform/Numbers.h"
#include "platform/TextFile.h"
#include "safety/RaceImage.h"

#include <cmath>

namespace {

constexpr int HighestNumber = 30000;

/// Writes the columns of a row as copies have them: without results these and start number and fee are 0, as a number
/// line each; with them some have no blanks around.
/// Quirk: last column of a copy. It is the order number and not the exact class as in every other R file.
class ColumnCopy {
public:
  ColumnCopy(TextWriter &file, const TeilnehmerZeile &row, bool withResults)
      : m_file(file), m_row(row), m_withResults(withResults) {}

  void operator()(int TeilnehmerZeile::*column) const {
    using Row = TeilnehmerZeile;
    const bool bare = column == &Row::ZeitReserve || column == &Row::Status1 || column == &Row::Status2;
    if (bare && m_withResults)
      m_file.text(plainText(m_row.*column));
    else if (bare || column == &Row::StartNr || column == &Row::Bezahlt)
      m_file.number(m_withResults ? m_row.*column : 0);
    else
      m_file.number(m_row.*column);
  }
  void operator()(qint16 TeilnehmerZeile::*column) const {
    m_file.number(column == &TeilnehmerZeile::KlasseGenau ? m_row.KlasseReihe : m_row.*column);
  }
  void operator()(auto TeilnehmerZeile::*column) const {
    if (m_withResults)
      m_file.decimal(m_row.*column);
    else
      m_file.number(0);
  }

private:
  TextWriter &m_file;
  const TeilnehmerZeile &m_row;
  bool m_withResults;
};

QByteArray copiedParticipants(const Store &store, bool withResults) {
  TextWriter file;
  for (const int i : store.Teilnehmer.rows()) {
    const TeilnehmerZeile &row = store.Teilnehmer[i];
    if (row.LaeuferNr == 0)
      continue;
    forEachColumn(ColumnCopy(file, row, withResults));
    for (int line = 0; line < ReserveLines; ++line)
      file.text({});
  }
  return file.bytes();
}

void writeRecord(Store &store, int number, const RennenSatz &record) {
  store.RennenIdx = number;
  store.Rennen = record;
  RennenSchreiben(store);
  store.RennenIdx = store.AktRennen;
  RennenLesen(store);
}

} // namespace

std::optional<int> copyNumber(const QString &text) {
  const double number = std::trunc(leadingNumber(text));
  if (number < 1 || number > HighestNumber)
    return {};
  return int(number);
}

void copyRace(Store &store, int number, const QString &name, bool withResults) {
  auto files = raceFiles(store);
  files.first().bytes = copiedParticipants(store, withResults);
  RennenSatz record = store.Rennen;
  record.RennenName = QStringLiteral("Kopie v. ") + name;
  store.beforeReplacing(replacingImage(store, number, files, record));
  writeRaceFiles(store, number, files);
  writeRecord(store, number, record);
  store.afterReplacing();
}
