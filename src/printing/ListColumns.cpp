#include "printing/ListColumns.h"

#include "core/ValueFormats.h"
#include "platform/Dates.h"

namespace {

using ListColumn = Column<ListLine>;
using enum Alignment;

// A number stands left between blanks or right in four characters.
ListColumn numberColumn(const char *head, double x, Alignment alignment, double size) {
  return {QString::fromUtf8(head), x, alignment, size, [alignment](const ListLine &line) {
            const int number = line.participant.StartNr;
            return alignment == Left ? PrintItem(number) : PrintItem(plainText(number));
          }};
}

ListColumn nameColumn(double x, double size, int length) {
  return {QStringLiteral("Name"), x, Left, size,
          [length](const ListLine &line) { return line.athlete.Name.left(length); }};
}

ListColumn clubColumn(const Store &store, double x, double size, int length, bool orLong) {
  return {QStringLiteral("Verein/Mannschaft"), x, Left, size, [&store, length, orLong](const ListLine &line) {
            return clubShown(store, line.athlete, line.participant, orLong).left(length);
          }};
}

ListColumn yearColumn(const char *head, double x) {
  return {QString::fromUtf8(head), x, Left, 9, [](const ListLine &line) { return yearOf(line.athlete.Geburtsdatum); }};
}

ListColumn sexColumn(double x) {
  return {QStringLiteral("m/w"), x, Left, 9, [](const ListLine &line) {
            return line.athlete.Geschlecht == Sex::Male ? QStringLiteral("m") : QStringLiteral("w");
          }};
}

ListColumn placeColumn() {
  return {QStringLiteral("Rang"), 6, FourCharacters, 10,
          [](const ListLine &line) { return plainText(line.participant.Rang) + QLatin1Char('.'); }};
}

ListColumn timeColumn(const char *head, double headAt, double x, double TeilnehmerZeile::*time) {
  return {QString::fromUtf8(head),
          x,
          Time,
          9,
          [time](const ListLine &line) { return ZeitText(line.participant.*time); },
          headAt};
}

ListColumn singleTimeColumn(const Store &store, int race, double x) {
  return {store.cup.ZeitsummeRennenKurz[race], x, Time, 9,
          [&store, race](const ListLine &line) { return ZeitText(store.cup.CupZeit(line.row, race)); }};
}

bool hasBestTime(const RangTabellen &ranking, const ListLine &line) {
  const int sex = line.athlete.Geschlecht;
  return (sex != Sex::Female || line.participant.WertSumme == ranking.BestzeitDamen) &&
         (sex != Sex::Male || line.participant.WertSumme == ranking.BestzeitHerren);
}

// Quirk: remark by the time alone. A person without sex gets it too, and where no text fits the last one again.
ListColumn remarkColumn(const Store &store) {
  const int choice = store.Rennen.BestzeitText;
  const auto remark = [&store, choice, last = QString()](const ListLine &line) mutable {
    if (choice == 0 || !hasBestTime(store.ranking, line))
      return QString();
    if (const QString text = bestTimeRemark(choice, line.athlete.Geschlecht); !text.isNull())
      last = text;
    return last;
  };
  return withoutHead(ListColumn(QStringLiteral("Bemerkung"), 180, Left, choice == 4 ? 6.5 : 8, remark));
}

ListColumn classColumn(const Store &store, double x) {
  return {classHead(store), x, Left, 9,
          [&store](const ListLine &line) { return classOrGroup(store, line.participant); }};
}

// Quirk: plain class of the unranked. The other lists show the exact one.
ListColumn plainClassColumn(const Store &store, double x) {
  return {classHead(store), x, Left, 9, [&store](const ListLine &line) {
            return store.Rennen.WertKlassen == 0 ? store.GruppeName[line.participant.GruppeNr]
                                                 : store.KlasseName[line.participant.KlasseNr];
          }};
}

ListColumn guestColumn(double x) {
  return withoutHead(ListColumn(QStringLiteral("Gast"), x, Left, 9, [](const ListLine &line) {
    return line.participant.Gast == 1 ? QStringLiteral("G") : QStringLiteral("-");
  }));
}

ListColumn statusColumn(const Store &store, double x, double size, int TeilnehmerZeile::*run) {
  return {QStringLiteral("Status"), x, Left, size,
          [&store, run](const ListLine &line) { return store.StatusText[line.participant.*run]; }};
}

ListColumn reasonColumn(const Store &store, const char *head, double x, int TeilnehmerZeile::*run) {
  return inBold(ListColumn(QString::fromUtf8(head), x, Left, 9, [&store, run](const ListLine &line) {
    return line.participant.*run > 0 ? store.StatusText[line.participant.*run] : QString();
  }));
}

} // namespace

ListColumns resultColumns(const Store &store) {
  ListColumns columns{placeColumn(),
                      numberColumn("St.Nr.", 20, FourCharacters, 10),
                      nameColumn(34, 10, 26),
                      clubColumn(store, 79, 10, 20, false),
                      yearColumn("Jahrg.", 113),
                      timeColumn("Zeit", 133, 125, &TeilnehmerZeile::WertZeit1)};
  if (store.Rennen.ZweiDurchgaenge != 0)
    columns << timeColumn("Zeit2", 150, 144, &TeilnehmerZeile::WertZeit2)
            << timeColumn("Summe", 166, 165, &TeilnehmerZeile::WertSumme);
  return columns << remarkColumn(store);
}

// Quirk: combined list shows two races. The sum may hold more.
ListColumns combinedColumns(const Store &store) {
  return {placeColumn(),
          nameColumn(20, 10, 26),
          clubColumn(store, 65, 10, 20, false),
          yearColumn("Jahrg.", 98),
          singleTimeColumn(store, 1, 114),
          singleTimeColumn(store, 2, 140),
          timeColumn("Summe", 166, 165, &TeilnehmerZeile::WertSumme),
          remarkColumn(store)};
}

ListColumns participantColumns(const Store &store) {
  ListColumn status = statusColumn(store, 133, 8, &TeilnehmerZeile::Status1);
  status.second = statusColumn(store, 133, 8, &TeilnehmerZeile::Status2).cell;
  return {numberColumn("St.Nr.", 20, FourCharacters, 9), nameColumn(34, 9, 26), clubColumn(store, 79, 9, 20, true),
          yearColumn("Jahrg.", 113), status};
}

ListColumns alphabeticColumns(const Store &store) {
  return {numberColumn("St.Nr.", 20, FourCharacters, 9), nameColumn(34, 9, 26), clubColumn(store, 79, 9, 25, true),
          classColumn(store, 130)};
}

ListColumns secondRunColumns(const Store &store) {
  return {numberColumn("StartNr.", 20, Left, 9),
          nameColumn(45, 9, -1),
          sexColumn(90),
          yearColumn("Jahr", 100),
          classColumn(store, 110),
          statusColumn(store, 170, 9, &TeilnehmerZeile::Status1)};
}

ListColumns unrankedColumns(const Store &store) {
  const bool two = store.Rennen.ZweiDurchgaenge == 1;
  const ListColumn second = reasonColumn(store, "2.Dg.", 175, &TeilnehmerZeile::Status2);
  return {numberColumn("StartNr.", 20, Left, 9),
          nameColumn(45, 9, -1),
          sexColumn(100),
          yearColumn("Jahr", 110),
          plainClassColumn(store, 125),
          guestColumn(145),
          reasonColumn(store, two ? "1.Dg." : "Grund", 155, &TeilnehmerZeile::Status1),
          two ? second : withoutHead(second)};
}

QString bestTimeRemark(int choice, int sex) {
  const bool known = sex == Sex::Female || sex == Sex::Male;
  switch (choice) {
  case 1:
    return QStringLiteral("Bestzeit");
  case 2:
    return QStringLiteral("Tagesbestzeit");
  case 3:
    return known ? (sex == Sex::Female ? QStringLiteral("Ortsmeisterin") : QStringLiteral("Ortsmeister")) : QString();
  case 4:
    return known ? (sex == Sex::Female ? QStringLiteral("Vereinsmeisterin") : QStringLiteral("Vereinsmeister"))
                 : QString();
  default:
    return {};
  }
}
