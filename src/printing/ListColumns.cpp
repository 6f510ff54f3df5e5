#include "printing/ListColumns.h"

#include "core/ValueFormats.h"
#include "platform/Dates.h"

namespace {

using Column = Spalte<ListRow>;
using enum Ausrichtung;

// A number stands left between blanks or right in four characters.
Column numberColumn(const char *head, double x, Ausrichtung ausrichtung, double size) {
  return {QString::fromUtf8(head), x, ausrichtung, size, [ausrichtung](const ListRow &row) {
            const int number = row.participant.StartNr;
            return ausrichtung == Links ? PrintItem(number) : PrintItem(plainText(number));
          }};
}

Column nameColumn(double x, double size, int length) {
  return {QStringLiteral("Name"), x, Links, size,
          [length](const ListRow &row) { return row.athlete.Name.left(length); }};
}

Column clubColumn(const Store &store, double x, double size, int length, bool orLong) {
  return {QStringLiteral("Verein/Mannschaft"), x, Links, size, [&store, length, orLong](const ListRow &row) {
            return Vereinstext(store, row.athlete, row.participant, orLong).left(length);
          }};
}

Column yearColumn(const char *head, double x) {
  return {QString::fromUtf8(head), x, Links, 9, [](const ListRow &row) { return yearOf(row.athlete.Geburtsdatum); }};
}

Column sexColumn(double x) {
  return {QStringLiteral("m/w"), x, Links, 9, [](const ListRow &row) {
            return row.athlete.Geschlecht == Sex::Male ? QStringLiteral("m") : QStringLiteral("w");
          }};
}

Column placeColumn() {
  return {QStringLiteral("Rang"), 6, Vierstellig, 10,
          [](const ListRow &row) { return plainText(row.participant.Rang) + QLatin1Char('.'); }};
}

Column timeColumn(const char *head, double headAt, double x, double TeilnehmerZeile::*time) {
  return {QString::fromUtf8(head),
          x,
          Zeit,
          9,
          [time](const ListRow &row) { return ZeitText(row.participant.*time); },
          headAt};
}

Column singleTimeColumn(const Store &store, int race, double x) {
  return {store.cup.ZeitsummeRennenKurz[race], x, Zeit, 9,
          [&store, race](const ListRow &row) { return ZeitText(store.cup.CupZeit(row.row, race)); }};
}

bool hasBestTime(const Rangliste &rangliste, const ListRow &row) {
  const int sex = row.athlete.Geschlecht;
  return (sex != Sex::Female || row.participant.WertSumme == rangliste.BestzeitDamen) &&
         (sex != Sex::Male || row.participant.WertSumme == rangliste.BestzeitHerren);
}

// The time alone decides; a person without sex gets the remark too, and where no text fits the last one again. This is
// meant.
Column remarkColumn(const Store &store) {
  const int choice = store.Rennen.BestzeitText;
  const auto remark = [&store, choice, last = QString()](const ListRow &row) mutable {
    if (choice == 0 || !hasBestTime(store.rangliste, row))
      return QString();
    if (const QString text = Bestzeittext(choice, row.athlete.Geschlecht); !text.isNull())
      last = text;
    return last;
  };
  return withoutHead(Column(QStringLiteral("Bemerkung"), 180, Links, choice == 4 ? 6.5 : 8, remark));
}

Column classColumn(const Store &store, double x) {
  return {Klassenspalte(store), x, Links, 9,
          [&store](const ListRow &row) { return Klassentext(store, row.participant); }};
}

// The plain class stands here, not the exact one of the other lists; this is meant.
Column plainClassColumn(const Store &store, double x) {
  return {Klassenspalte(store), x, Links, 9, [&store](const ListRow &row) {
            return store.Rennen.WertKlassen == 0 ? store.GruppeName[row.participant.GruppeNr]
                                                 : store.KlasseName[row.participant.KlasseNr];
          }};
}

Column guestColumn(double x) {
  return withoutHead(Column(QStringLiteral("Gast"), x, Links, 9, [](const ListRow &row) {
    return row.participant.Gast == 1 ? QStringLiteral("G") : QStringLiteral("-");
  }));
}

Column statusColumn(const Store &store, double x, double size, int TeilnehmerZeile::*run) {
  return {QStringLiteral("Status"), x, Links, size,
          [&store, run](const ListRow &row) { return store.StatusText[row.participant.*run]; }};
}

Column reasonColumn(const Store &store, const char *head, double x, int TeilnehmerZeile::*run) {
  return inBold(Column(QString::fromUtf8(head), x, Links, 9, [&store, run](const ListRow &row) {
    return row.participant.*run > 0 ? store.StatusText[row.participant.*run] : QString();
  }));
}

} // namespace

ListColumns ergebnisSpalten(const Store &store) {
  ListColumns columns{placeColumn(),
                      numberColumn("St.Nr.", 20, Vierstellig, 10),
                      nameColumn(34, 10, 26),
                      clubColumn(store, 79, 10, 20, false),
                      yearColumn("Jahrg.", 113),
                      timeColumn("Zeit", 133, 125, &TeilnehmerZeile::WertZeit1)};
  if (store.Rennen.ZweiDurchgaenge != 0)
    columns << timeColumn("Zeit2", 150, 144, &TeilnehmerZeile::WertZeit2)
            << timeColumn("Summe", 166, 165, &TeilnehmerZeile::WertSumme);
  return columns << remarkColumn(store);
}

// Only two races are shown, however many the sum holds.
ListColumns kombinationSpalten(const Store &store) {
  return {placeColumn(),
          nameColumn(20, 10, 26),
          clubColumn(store, 65, 10, 20, false),
          yearColumn("Jahrg.", 98),
          singleTimeColumn(store, 1, 114),
          singleTimeColumn(store, 2, 140),
          timeColumn("Summe", 166, 165, &TeilnehmerZeile::WertSumme),
          remarkColumn(store)};
}

ListColumns teilnehmerSpalten(const Store &store) {
  Column status = statusColumn(store, 133, 8, &TeilnehmerZeile::Status1);
  status.danach = statusColumn(store, 133, 8, &TeilnehmerZeile::Status2).zelle;
  return {numberColumn("St.Nr.", 20, Vierstellig, 9), nameColumn(34, 9, 26), clubColumn(store, 79, 9, 20, true),
          yearColumn("Jahrg.", 113), status};
}

ListColumns alphabetischeSpalten(const Store &store) {
  return {numberColumn("St.Nr.", 20, Vierstellig, 9), nameColumn(34, 9, 26), clubColumn(store, 79, 9, 25, true),
          classColumn(store, 130)};
}

ListColumns startlistenSpalten(const Store &store) {
  return {numberColumn("StartNr.", 20, Links, 9),
          nameColumn(45, 9, -1),
          sexColumn(90),
          yearColumn("Jahr", 100),
          classColumn(store, 110),
          statusColumn(store, 170, 9, &TeilnehmerZeile::Status1)};
}

ListColumns nichtGewertetSpalten(const Store &store) {
  const bool two = store.Rennen.ZweiDurchgaenge == 1;
  const Column second = reasonColumn(store, "2.Dg.", 175, &TeilnehmerZeile::Status2);
  return {numberColumn("StartNr.", 20, Links, 9),
          nameColumn(45, 9, -1),
          sexColumn(100),
          yearColumn("Jahr", 110),
          plainClassColumn(store, 125),
          guestColumn(145),
          reasonColumn(store, two ? "1.Dg." : "Grund", 155, &TeilnehmerZeile::Status1),
          two ? second : withoutHead(second)};
}

QString Bestzeittext(int choice, int sex) {
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
