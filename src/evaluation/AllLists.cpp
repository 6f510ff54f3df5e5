#include "evaluation/AllLists.h"

#include "evaluation/TeamList.h"
#include "platform/Numbers.h"
#include "platform/print/HtmlFile.h"
#include "printing/Documents.h"

#include <QFileInfo>

#include <utility>

namespace {

/// Puts back what an evaluation of the open race changes, for screens that still show their own.
class EvaluationKept {
public:
  explicit EvaluationKept(Store &store)
      : m_store(store), m_rows(store.Teilnehmer), m_ranking(store.ranking), m_teams(store.mannschaften),
        m_cup(store.cup) {}
  ~EvaluationKept() {
    m_store.Teilnehmer = std::move(m_rows);
    m_store.ranking = std::move(m_ranking);
    m_store.mannschaften = std::move(m_teams);
    m_store.cup = std::move(m_cup);
  }
  Q_DISABLE_COPY_MOVE(EvaluationKept)

private:
  Store &m_store;
  decltype(Store::Teilnehmer) m_rows;
  RangTabellen m_ranking;
  MannschaftsTabellen m_teams;
  CupTabellen m_cup;
};

// The list of units is called alike for all of them.
void addUnits(QList<Recording> &lists, Store &store, Einheit unit, const QString &what) {
  const Wertung how{unit, WertungsArt::Bestzeit, WertungsFilter::Gemischt, 2};
  const TeamPrint list{how, evaluateUnits(store, how)};
  if (list.units.isEmpty())
    return;
  Druckschicht druck([&](Recording done) {
    done.name += QLatin1Char(' ') + what;
    done.title += QLatin1Char(' ') + what;
    lists.append(done);
  });
  Mannschaftsliste(store, druck, list, [&](int line) {
    return memberLines(store, how, numberAtEnd(list.units[line]), MemberOrder::ByTime);
  });
}

} // namespace

QList<Recording> allLists(Store &store) {
  const EvaluationKept kept(store);
  QList<Recording> lists;
  Druckschicht druck([&lists](const Recording &done) { lists.append(done); });
  Ergebnisliste(store, druck, {});
  Teilnehmerliste(store, druck);
  if (store.Rennen.ZweiDurchgaenge != 0)
    StartlisteZweiterDurchgang(store, druck);
  NichtInDerWertung(store, druck);
  prepareUnits(store);
  addUnits(lists, store, Einheit::Verein, QStringLiteral("Vereine"));
  if (!teamLines(store).isEmpty())
    addUnits(lists, store, Einheit::Mannschaft, QStringLiteral("Mannschaften"));
  if (!groupLines(store).isEmpty())
    addUnits(lists, store, Einheit::Gruppe, QStringLiteral("Gruppen"));
  return lists;
}

void printAllLists(Store &store, Printers &printers, const QString &folder, const std::function<QDateTime()> &now) {
  QList<std::pair<QString, QString>> pages;
  const Printer web = htmlPrinter(folder, now);
  for (const Recording &list : allLists(store)) {
    printers.print(list, web);
    pages.append({list.name, QFileInfo(printers.outcome().files.last()).fileName()});
  }
  Recording index;
  index.name = QStringLiteral("Alle Listen");
  index.title = trimmedBlanks(shownText(store.Rennen.RennenName)) + QStringLiteral(" – Alle Listen");
  index.race = store.AktRennen;
  printers.print(index, htmlIndexPrinter(folder, now, pages));
}
