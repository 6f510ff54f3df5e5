#include "exchange/EntryPlan.h"

#include "core/RecordFiles.h"
#include "exchange/Likeness.h"
#include "masterdata/ClubRegister.h"
#include "platform/Dates.h"
#include "platform/Numbers.h"
#include "raceprep/ParticipantList.h"

namespace {

constexpr double UnknownBirthDate = 2;

bool isDated(const LaeuferSatz &athlete) {
  return athlete.Geburtsdatum != UnknownBirthDate;
}

int yearIfDated(const LaeuferSatz &athlete) {
  return isDated(athlete) ? yearOf(athlete.Geburtsdatum) : 0;
}

/// The athletes of the register, and whom a line may mean.
class Register {
public:
  explicit Register(const Store &store) : m_store(store) {
    for (int n = 1; n <= store.LaeuferAnzahl; ++n)
      if (const LaeuferSatz athlete = LaeuferLesen(store, n); !athlete.Name.isEmpty()) {
        m_names.add(foldedName(athlete.Name), yearIfDated(athlete), n);
        if (const QString number = trimmedBlanks(athlete.OesvNr); !number.isEmpty())
          m_byOesvNr.insert(number, n);
      }
  }

  void judge(PlannedEntry &line) const {
    const QString folded = foldedName(line.entry.athlete.Name);
    const auto namesakes = m_names.same(folded);
    for (const int n : namesakes)
      if (isSame(line.entry, LaeuferLesen(m_store, n)))
        return decide(line, Verdict::Known, Choice::Same, n);
    int similar = namesakes.value(0);
    if (similar == 0)
      similar = m_names.similar(folded, yearIfDated(line.entry.athlete));
    if (similar == 0)
      similar = m_byOesvNr.value(line.entry.athlete.OesvNr);
    if (similar != 0)
      decide(line, Verdict::Similar, Choice::Open, similar);
  }

private:
  static bool isSame(const Entry &entry, const LaeuferSatz &athlete) {
    if (!isDated(entry.athlete) || !isDated(athlete))
      return false;
    return entry.yearOnly ? yearOf(entry.athlete.Geburtsdatum) == yearOf(athlete.Geburtsdatum)
                          : entry.athlete.Geburtsdatum == athlete.Geburtsdatum;
  }

  void decide(PlannedEntry &line, Verdict verdict, Choice choice, int n) const {
    const LaeuferSatz athlete = LaeuferLesen(m_store, n);
    line.verdict = verdict;
    line.choice = choice;
    line.record = n;
    QStringList words{shownText(athlete.Name)};
    words << (isDated(athlete) ? shortDate(fromDays(athlete.Geburtsdatum)) : QStringLiteral("ohne Geburtsdatum"));
    if (isClub(m_store, athlete.Verein1))
      words << shownText(shortNameOfClub(m_store, athlete.Verein1));
    line.whom = words.join(QStringLiteral(", "));
  }

  const Store &m_store;
  NameIndex m_names;
  QHash<QString, int> m_byOesvNr;
};

void refuse(PlannedEntry &line, const QString &why) {
  line.entry.trouble = why;
  line.verdict = Verdict::Refused;
  line.choice = Choice::LeaveOut;
}

/// Persons of whom a line has told before.
class Told {
public:
  /// The line before that tells of the same person; 0 if there is none.
  int before(const PlannedEntry &line) {
    const QString person = line.verdict == Verdict::Known
                               ? QString::number(line.record)
                               : foldedName(line.entry.athlete.Name) + plainText(line.entry.athlete.Geburtsdatum);
    if (const auto found = m_lines.constFind(person); found != m_lines.constEnd())
      return *found;
    m_lines.insert(person, line.entry.line);
    return 0;
  }

private:
  QHash<QString, int> m_lines;
};

QHash<QString, int> clubsOf(const Store &store) {
  QHash<QString, int> clubs;
  for (int n = store.VereinAnzahl; n >= 1; --n) {
    const VereinSatz club = VereinLesen(store, n);
    if (!trimmedBlanks(club.VereinName).isEmpty())
      for (const QString &name : {club.VereinName, club.VereinKurz})
        clubs.insert(foldedClub(shownText(name)), n);
  }
  clubs.remove(QString());
  return clubs;
}

void noteClub(EntryPlan &plan, const QString &text) {
  const QString folded = foldedClub(text);
  if (!folded.isEmpty() && !plan.knownClubs.contains(folded) && !plan.unknownClubs.contains(folded))
    plan.unknownClubs.insert(folded, {text, ClubAnswer::Open});
}

QString wordsIfTaken(const Store &store, const PlannedEntry &line, bool race) {
  const bool isNew = line.choice == Choice::New;
  const QString what = isNew                              ? QStringLiteral("neu")
                       : line.verdict == Verdict::Similar ? QStringLiteral("dieselbe Person wie „%1“").arg(line.whom)
                                                          : QStringLiteral("schon im Register");
  if (!race)
    return what;
  const bool starts = !isNew && isParticipant(store, line.record);
  return what + (starts ? QStringLiteral(", startet schon") : QStringLiteral(", kommt in das Rennen"));
}

} // namespace

int EntryPlan::club(const QString &text) const {
  const QString folded = foldedClub(text);
  const auto known = knownClubs.constFind(folded);
  return known != knownClubs.constEnd() ? *known : unknownClubs.value(folded).club;
}

QString EntryPlan::openClub(const PlannedEntry &line) const {
  for (const QString &text : line.entry.clubs)
    if (!foldedClub(text).isEmpty() && club(text) == ClubAnswer::Open)
      return text;
  return {};
}

// A person of the register keeps his clubs, whatever the table says.
bool EntryPlan::isTaken(const PlannedEntry &line) const {
  return line.choice == Choice::Same || (line.choice == Choice::New && openClub(line).isEmpty());
}

EntryPlan planFor(const Store &store, const QList<Entry> &entries, const EntryProgress &progress) {
  EntryPlan plan;
  plan.knownClubs = clubsOf(store);
  const Register athletes(store);
  Told told;
  for (const Entry &entry : entries) {
    PlannedEntry line{entry, {}, {}, 0, {}};
    line.verdict = Verdict::New;
    line.choice = Choice::New;
    if (!entry.trouble.isEmpty())
      refuse(line, entry.trouble);
    else {
      athletes.judge(line);
      if (const int before = told.before(line))
        refuse(line, QStringLiteral("steht schon in Zeile %1").arg(before));
      for (const QString &club : entry.clubs)
        noteClub(plan, club);
    }
    plan.lines << line;
    progress(plan.lines.size(), entries.size());
  }
  return plan;
}

QString wordsFor(const Store &store, const EntryPlan &plan, const PlannedEntry &line, bool race) {
  if (line.verdict == Verdict::Refused)
    return QStringLiteral("geht nicht: ") + line.entry.trouble;
  if (line.choice == Choice::LeaveOut)
    return QStringLiteral("bleibt weg");
  if (line.choice == Choice::Open)
    return QStringLiteral("fast gleich wie „%1“").arg(line.whom);
  if (const QString club = plan.openClub(line); !club.isEmpty() && line.choice == Choice::New)
    return QStringLiteral("unbekannter Verein „%1“").arg(club);
  return wordsIfTaken(store, line, race);
}

EntryCount count(const EntryPlan &plan) {
  EntryCount count;
  for (const PlannedEntry &line : plan.lines) {
    const bool taken = plan.isTaken(line), waits = line.choice == Choice::Open || line.choice == Choice::New;
    ++(taken ? line.choice == Choice::New ? count.newPersons : count.known : waits ? count.open : count.leftOut);
  }
  for (const auto &answer : plan.unknownClubs)
    count.newClubs += answer.club == ClubAnswer::MakeNew;
  return count;
}
