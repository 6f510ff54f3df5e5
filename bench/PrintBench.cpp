#include "core/Classes.h"
#include "platform/print/PdfFile.h"
#include "platform/print/Player.h"
#include "platform/print/PrintMetrics.h"
#include "printing/Documents.h"
#include "support/TestStore.h"

#include <QDir>
#include <QPainter>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

// A race with 1000 participants in 20 classes and two runs; one logo, as large as from a camera.
namespace {

struct FullRace : TestStore {
  FullRace() {
    QDir::setCurrent(folder.path());
    QImage logo(3500, 1800, QImage::Format_RGB32);
    logo.fill(Qt::darkGreen);
    logo.save(QStringLiteral("Logo.jpg"));
    addRace(QStringLiteral("Landesmeisterschaft"));
    store.Rennen.ZweiDurchgaenge = 1;
    for (int row = 1; row <= 1000; ++row)
      fill(row);
    KlassenZuordnen(store);
  }

  void fill(int row) {
    addAthlete(QStringLiteral("ÖLLINGER-MÜLLER Elisabeth %1").arg(row * 7919 % 1000), 1950 + row % 70, row % 2);
    TeilnehmerZeile &participant = store.Teilnehmer[row];
    participant.LaeuferNr = participant.StartNr = row;
    participant.Zeit1 = 40 + row * 7919 % 1000 / 100.0;
    participant.Zeit2 = 41 + row * 104729 % 1000 / 100.0;
  }
};

Store &fullRace() {
  static FullRace race;
  return race.store;
}

Recording recordedList() {
  Recording recording;
  Druckschicht druck([&recording](const Recording &done) { recording = done; });
  Ergebnisliste(fullRace(), druck, {});
  return recording;
}

void RecordResultList(benchmark::State &state) {
  fullRace();
  for ([[maybe_unused]] auto _ : state)
    benchmark::DoNotOptimize(recordedList());
}
BENCHMARK(RecordResultList)->Unit(benchmark::kMillisecond);

void ResultListAsPdf(benchmark::State &state) {
  const Recording recording = recordedList();
  qsizetype size = 0;
  for ([[maybe_unused]] auto _ : state)
    size = pdfOf(recording).size();
  state.counters["kB"] = double(size) / 1000;
  state.counters["pages"] = double(recording.pages.size());
}
BENCHMARK(ResultListAsPdf)->Unit(benchmark::kMillisecond);

void FirstPageOnScreen(benchmark::State &state) {
  for ([[maybe_unused]] auto _ : state) {
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
  for ([[maybe_unused]] auto _ : state) {
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
