#include "core/Participants.h"
#include "core/RaceFiles.h"
#include "hints/Rules.h"
#include "platform/CodePage.h"
#include "platform/Dates.h"
#include "platform/Numbers.h"
#include "platform/print/PictureFile.h"
#include "platform/print/PrintMetrics.h"
#include "printing/Werbung.h"

#include <QDir>
#include <QFile>
#include <QRectF>

// Printouts (Form8), the data of the title page (Form16) and its banners (Form21).

namespace {

constexpr double CertificateWidth = 165; // millimetres between its edges
constexpr double PageRight = 202, PageBottom = 289, PixelsAMillimetre = 96 / 25.4;

bool isRanked(const Starter &starter, bool secondTimes) {
  const auto &participant = starter.participant;
  return statusSum(participant) <= 0 && participant.Zeit1 != 0 && !(secondTimes && participant.Zeit2 == 0);
}

bool anySecondTime(const Situation &now) {
  return std::any_of(now.starters().begin(), now.starters().end(),
                     [](const Starter &starter) { return starter.participant.Zeit2 > 0; });
}

int linesRanked(const Store &store) {
  int lines = 0;
  while (lines < store.ranking.RangListe.last() && store.ranking.RangListe[lines + 1] != 0)
    ++lines;
  return lines;
}

/// A file of this name but for capitals; empty if there is none.
QString withOtherCapitals(const Store &store, const QString &name) {
  const QDir folder(store.DatenOrdner.isEmpty() ? QStringLiteral(".") : store.DatenOrdner);
  for (const QString &file : folder.entryList(QDir::Files))
    if (file != name && file.compare(name, Qt::CaseInsensitive) == 0)
      return file;
  return {};
}

struct TextOfRace {
  const char *field, *caption;
  int bytes;
};
constexpr TextOfRace TextsOfRace[] = {{"Text1", "Ort", 80},
                                      {"Text2", "Rennen kurz", 50},
                                      {"Text4", "Veranstalter", 80},
                                      {"Text6", "Startzeit", 5},
                                      {"Text5", "durchführender Verein", 25},
                                      {"Text7", "Kurssetzung", 25},
                                      {"Text8", "Rennleiter", 25},
                                      {"Text9", "Tore", 4},
                                      {"Text10", "Zeitnehmung", 25},
                                      {"Text12", "Zielrichter", 25},
                                      {"Text11", "Chefkampfrichter", 25},
                                      {"Text13", "Startrichter", 25},
                                      {"Text14", "Sponsor 1", 40},
                                      {"Text15", "Sponsor 2", 40},
                                      {"Text16", "Sponsor 3", 40},
                                      {"Text17", "Sponsor 4", 40},
                                      {"Text18", "Sponsor 5", 40},
                                      {"Text19", "Sponsor 6", 40}};

/// A chosen banner of the screen and where its picture comes to lie, millimetres; empty if it cannot be read.
struct Banner {
  int row;
  QString file;
  QRectF place;
};

QList<Banner> banners(const Situation &now) {
  QList<Banner> chosen;
  const auto control = [](const char *name, int row) {
    return QStringLiteral("%1_%2").arg(QLatin1String(name)).arg(row);
  };
  for (int row = 0; row < int(Werbung().size()); ++row) {
    const auto text = [&](const char *name) { return now.text(qPrintable(control(name, row))); };
    if (text("Check1") != QStringLiteral("1") || text("Text1").isEmpty())
      continue;
    const QSizeF size = QSizeF(pictureSize(now.store.DatenOrdner + text("Text1"))) * leadingNumber(text("Text4")) /
                        100 / PixelsAMillimetre;
    chosen.append({row, text("Text1"), QRectF({leadingNumber(text("Text2")), leadingNumber(text("Text3"))}, size)});
  }
  return chosen;
}

QString bannerField(const char *name, const Banner &banner) {
  return QStringLiteral("%1_%2").arg(QLatin1String(name)).arg(banner.row);
}

} // namespace

Hint Hints::certificatesOfAnotherList(const Situation &now) {
  const bool secondTimes = anySecondTime(now);
  const auto ranked = std::count_if(now.starters().begin(), now.starters().end(),
                                    [secondTimes](const Starter &starter) { return isRanked(starter, secondTimes); });
  const int lines = linesRanked(now.store);
  if (lines > 0 && now.store.ranking.ErgebnisZeilen.isEmpty())
    return {QStringLiteral("Urkunden nähmen jetzt den Platz vom 1. Durchgang: zuerst „Ergebnisliste drucken“."),
            QStringLiteral("Command5")};
  if (lines >= ranked)
    return {};
  return {QStringLiteral(
              "Urkunden nähmen jetzt den Platz im Verein: zuerst „Ergebnisliste drucken“ ohne „Vereinswertung“."),
          QStringLiteral("Command5")};
}

Hint Hints::clubFilterWithoutClub(const Situation &now) {
  if (!now.isOn("Check1") || now.number("Combo3") >= 0)
    return {};
  return {QStringLiteral("„Vereinswertung“ ohne Verein: Die Ergebnisliste bleibt leer."), QStringLiteral("Combo3")};
}

Hint Hints::titleTooLong(const Situation &now) {
  const RennenSatz &race = now.store.Rennen;
  const QString title = shownText(race.RennenKurz.isEmpty() ? race.RennenName : race.RennenKurz);
  const double width = PrintMetrics::textWidth({QStringLiteral("Times"), 30, true, false}, title);
  if (width <= CertificateWidth)
    return {};
  return {QStringLiteral("Der Titel ist für die Urkunde um %1 mm zu breit: bei den Renndaten „Rennen kurz“ kürzen.")
              .arg(qRound(width - CertificateWidth))};
}

Hint Hints::printedWithoutSex(const Situation &now) {
  if (now.store.Rennen.WertGeschlecht != 0)
    return {};
  return {aboutStarters(namesOf(now, [](const Starter &starter) { return starter.athlete.Geschlecht == Sex::NotSet; }),
                        "Teilnehmer hat", "Teilnehmer haben", "%1 kein Geschlecht, auf Listen steht „w“ (%2).")};
}

Hint Hints::surchargesInTimes(const Situation &now) {
  const RennenSatz &race = now.store.Rennen;
  QStringList who;
  if (race.ZuschlagGast != 0)
    who << QStringLiteral("Gäste %1 s").arg(plainText(race.ZuschlagGast));
  if (race.ZuschlagMann != 0)
    who << QStringLiteral("Männer %1 s").arg(plainText(race.ZuschlagMann));
  if (who.isEmpty())
    return {};
  return {
      QStringLiteral("Gedruckte Zeiten enthalten je Durchgang den Zuschlag: %1.").arg(who.join(QStringLiteral(", ")))};
}

Hint Hints::logoInCapitals(const Situation &now) {
  const QString logo = QStringLiteral("Logo.jpg");
  if (QFile::exists(now.store.DatenOrdner + logo))
    return {};
  const QString other = withOtherCapitals(now.store, logo);
  if (other.isEmpty())
    return {};
  return {QStringLiteral("Das Logo heißt „%1“ und wird nicht gedruckt: in „Logo.jpg“ umbenennen.").arg(other)};
}

Hint Hints::textTooLong(const Situation &now) {
  for (const TextOfRace &text : TextsOfRace)
    if (const auto size = toCodePage(trimmedBlanks(now.text(text.field))).size(); size > text.bytes)
      return {QStringLiteral("„%1“ fasst %2 Zeichen: %3 am Ende gehen verloren.")
                  .arg(QString::fromUtf8(text.caption))
                  .arg(text.bytes)
                  .arg(size - text.bytes),
              QLatin1String(text.field)};
  return {};
}

Hint Hints::placeMissing(const Situation &now) {
  if (!trimmedBlanks(now.text("Text1")).isEmpty())
    return {};
  return {QStringLiteral("Der Ort ist leer: Er fehlt am Titelblatt."), QStringLiteral("Text1")};
}

Hint Hints::raceDateInvalid(const Situation &now) {
  if (typedDate(trimmedBlanks(now.text("Text3"))))
    return {};
  return {QStringLiteral("Das ist kein Datum: Gespeichert bleibt %1.")
              .arg(shortDate(fromDays(now.store.Rennen.RennenDatum))),
          QStringLiteral("Text3")};
}

Hint Hints::bannerMissing(const Situation &now) {
  for (const Banner &banner : banners(now)) {
    if (!banner.place.isEmpty())
      continue;
    const QString other = withOtherCapitals(now.store, banner.file);
    return {other.isEmpty()
                ? QStringLiteral("Bild „%1“ liegt nicht im Datenordner oder ist nicht lesbar.").arg(banner.file)
                : QStringLiteral("Bild „%1“ heißt im Datenordner „%2“.").arg(banner.file, other),
            bannerField("Text1", banner)};
  }
  return {};
}

Hint Hints::bannersOverlap(const Situation &now) {
  const auto all = banners(now);
  for (qsizetype i = 0; i < all.size(); ++i)
    for (qsizetype j = i + 1; j < all.size(); ++j)
      if (all[i].place.intersects(all[j].place))
        return {QStringLiteral("„%1“ verdeckt „%2“.").arg(all[j].file, all[i].file), bannerField("Text1", all[j])};
  return {};
}

Hint Hints::bannerOffPage(const Situation &now) {
  for (const Banner &banner : banners(now))
    if (banner.place.right() > PageRight || banner.place.bottom() > PageBottom)
      return {QStringLiteral("„%1“ ragt über den Rand des Blattes: kleiner machen oder verschieben.").arg(banner.file),
              bannerField("Text4", banner)};
  return {};
}
