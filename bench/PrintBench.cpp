#include "core/Classes.h"
#include "core/RaceFiles.h"
#include "core/RecordFiles.h"
#include "core/Start.h"
#include "platform/Dates.h"
#include "platform/print/PdfFile.h"
#include "platform/print/Player.h"
#include "platform/print/PrintMetrics.h"
#include "printing/Documents.h"

#include <QDir>
#include <QPainter>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

// A race with 1000 participants in 20 classes and two runs; one logo, as large as from a camera.
namespace {

class FullRace {
public:
  FullRace() {
    store.DatenOrdner = folder.path() + QLatin1Char('/');
    QDir::setCurrent(folder.path());
    QImage logo(3500, 1800, QImage::Format_RGB32);
    logo.fill(Qt::darkGreen);
    logo.save(QStringLiteral("Logo.jpg"));
    storeStarten(store);
    alleDateienOeffnen(store);
    store.Rennen.RennenName = QStringLiteral("Landesmeisterschaft");
    store.Rennen.WertKlassen = store.Rennen.WertZeit = store.Rennen.ZweiDurchgaenge = 1;
    store.AktRennen = store.RennenIdx = 1;
    RennenSchreiben(store);
    RennDatenLaden(store);
    for (int row = 1; row <= 1000; ++row)
      enter(row);
    KlassenZuordnen(store);
  }

  Store &of() { return store; }

private:
  void enter(int row) {
    LaeuferSatz athlete;
    athlete.Name = QStringLiteral("ÖLLINGER-MÜLLER Elisabeth %1").arg(row * 7919 % 1000);
    athlete.Geburtsdatum = toDays(QDate(1950 + row % 70, 7, 1));
    athlete.Geschlecht = qint16(row % 2);
    LaeuferSchreiben(store, row, athlete);
    TeilnehmerZeile &participant = store.Teilnehmer[row];
    participant.LaeuferNr = participant.StartNr = row;
    participant.Zeit1 = 40 + row * 7919 % 1000 / 100.0;
    participant.Zeit2 = 41 + row * 104729 % 1000 / 100.0;
  }

  QTemporaryDir folder;
  Umgebung umgebung;
  Store store{umgebung};
};

Store &fullRace() {
  static FullRace race;
  return race.of();
}

Recording recordedList() {
  Recording recording;
  Druckschicht druck([&recording](const Recording &done) { recording = done; });
  Ergebnisliste(fullRace(), druck, {});
  return recording;
}

void RecordResultList(benchmark::State &state) {
  fullRace();
  for (auto _ : state)
    benchmark::DoNotOptimize(recordedList());
}
BENCHMARK(RecordResultList)->Unit(benchmark::kMillisecond);

void ResultListAsPdf(benchmark::State &state) {
  const Recording recording = recordedList();
  qsizetype size = 0;
  for (auto _ : state)
    size = pdfOf(recording).size();
  state.counters["kB"] = double(size) / 1000;
  state.counters["pages"] = double(recording.pages.size());
}
BENCHMARK(ResultListAsPdf)->Unit(benchmark::kMillisecond);

void FirstPageOnScreen(benchmark::State &state) {
  for (auto _ : state) {
    const Recording recording = recordedList();
    QImage page(800, 1131, QImage::Format_RGB32);
    page.fill(Qt::white);
    QPainter painter(&page);
    const double scale = page.width() / (Blatt::Breite * PrintMetrics::DotsAMillimetre);
    painter.scale(scale, scale);
    playPage(recording.pages.first(), painter);
  }
}
BENCHMARK(FirstPageOnScreen)->Unit(benchmark::kMillisecond);

void HundredCertificates(benchmark::State &state) {
  recordedList();
  for (auto _ : state) {
    const QTemporaryDir target;
    Druckschicht druck([&target](const Recording &done) {
      writePrintFile(target.path(), QDateTime::currentDateTime(), done, QStringLiteral("pdf"), pdfOf(done));
    });
    for (int row = 1; row <= 100; ++row)
      Urkunde(fullRace(), druck, row, {});
  }
}
BENCHMARK(HundredCertificates)->Unit(benchmark::kMillisecond);

} // namespace
