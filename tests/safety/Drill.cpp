#include "safety/Drill.h"

#include "platform/Faults.h"
#include "platform/Files.h"
#include "safety/CallKinds.h"
#include "support/RealProgram.h"

#include <QDir>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <csignal>

namespace {

constexpr int Patience = 60'000; // milliseconds
constexpr double Never = 1e9;
/// In place of an exit code: the program did not end. The code of a death is the negative signal.
constexpr int Hung = 1000;
/// What may be lost of the typing: the time between two running copies, and what the timer may be late.
constexpr long Promise = 2000, Lateness = 100;
const QStringList JustEnd{"Form1.Command4 click"};
const auto Answers = QString("Fehlerbericht press Schließen\nRettung press Übernehmen|Fertigstellen|Weiter");

struct Place {
  Place() { makeEvent(data()); }
  QString data() const { return root.filePath("Daten"); }
  QString home() const { return root.filePath("Heim"); }
  QString log() const { return root.filePath("Aufrufe"); }

  QTemporaryDir root;
};

QProcessEnvironment environment(const Place &place, const QStringList &steps, const Mishap &mishap) {
  auto all = realProgram(place.home(), steps.join(u'\n'));
  const std::pair<const char *, QString> own[] = {
      {"LD_PRELOAD", VEXT_FILECALLS},
      {"QT_NO_GLIB", "1"},
      {"OPERATOR_ANSWERS", Answers},
      {"OPERATOR_LOG", place.log()},
      {"FILECALLS_LOG", place.log()},
      {"FILECALLS_FOLDERS", place.data() + u':' + place.home() + QString("/VEXT")},
      {"FILECALLS_AT", QString::number(mishap.call)},
      {"FILECALLS_DO", QString::fromLatin1(mishap.act)}};
  for (const auto &[name, value] : own)
    all.insert(name, value);
  return all;
}

void readCall(Run &run, const QStringList &words) {
  run.calls << words.value(2);
  run.end = words.value(1).toLong();
  if (words.last() == "!" && run.firstFailure < 0)
    run.firstFailure = run.end;
}

void readLog(Run &run, const QString &path) {
  run.log = QString::fromUtf8(readFile(path)).split(u'\n', Qt::SkipEmptyParts);
  for (const auto &line : std::as_const(run.log)) {
    const QStringList words = line.split(u' ');
    if (words.first() == "step")
      run.steps.push_back({words.value(1).toLong() - 1'000'000, words.value(2).toDouble() / 1000});
    else if (words.first() != "answer")
      readCall(run, words);
    else if (words.value(3) == "Rettung")
      ++run.answers;
  }
}

// Where a sync takes its time, the clock runs.
Run runProgram(const Place &place, const QStringList &steps, const Mishap &mishap, int syncDelay = 0) {
  auto all = environment(place, steps, mishap);
  if (syncDelay > 0)
    all.insert("FILECALLS_DELAY", QString::number(syncDelay));
  else
    all.insert("FILECALLS_CLOCK", "1");
  QFile::remove(place.log());
  QProcess program;
  program.setProcessEnvironment(all);
  program.setWorkingDirectory(place.data());
  program.start(VEXT_PROGRAM, QStringList());
  Run run;
  const bool ended = program.waitForFinished(Patience);
  run.code = !ended ? Hung : program.exitStatus() == QProcess::NormalExit ? program.exitCode() : -program.exitCode();
  run.killed = run.code == -SIGKILL;
  run.errors = program.readAllStandardError();
  readLog(run, place.log());
  return run;
}

QStringList textsOf(const Session &session) {
  QStringList texts;
  for (const auto &step : session.steps)
    texts << step.text;
  return texts;
}

bool isTyping(const Step &step) {
  const QString verb = step.text.section(u' ', 1, 1);
  return verb == "type" || verb == "key" || verb == "line";
}

std::map<QString, qint64> sizesIn(const QString &folder) {
  std::map<QString, qint64> sizes;
  for (const auto &file : QDir(folder).entryInfoList(QDir::Files))
    sizes[file.fileName()] = file.size();
  return sizes;
}

/// Counts of Vext.dat; empty if there is none.
QList<int> countsIn(const QString &folder) {
  QList<int> counts;
  for (const auto &line : readFile(folder + QString("/Vext.dat")).split('\n'))
    counts << line.trimmed().toInt();
  return counts;
}

bool isLower(const QList<int> &counts, const QList<int> &before) {
  for (qsizetype i = 0; i < 3; ++i)
    if (counts.value(i) < before.value(i))
      return true;
  return false;
}

bool isForGood(const Mishap &mishap) {
  return mishap.act.endsWith('+');
}

/// Until when all that was typed must come back: a fault loses nothing, a death and a disk that is broken for good what
/// was typed last; what was saved is safe, but for a power cut.
bool mustComeBack(const Session &session, const Run &run, size_t step, const Mishap &mishap) {
  if (step >= run.steps.size())
    return false;
  if (!run.killed && !isForGood(mishap))
    return true;
  const long end = isForGood(mishap) && run.firstFailure >= 0 ? run.firstFailure : run.end;
  if (run.code == 0 && !run.killed)
    return true;
  if (end - run.steps[step].when > Promise + Lateness)
    return true;
  bool saved = false;
  for (size_t later = step; later < run.steps.size() && run.steps[later].when < end; ++later)
    saved = saved || session.steps[later].saves;
  return saved && mishap.act != "cut";
}

QStringList requiredFacts(const Session &session, const Run &run, const Mishap &mishap) {
  QStringList facts;
  for (size_t step = 0; step < session.steps.size(); ++step)
    if (!session.steps[step].fact.isEmpty() && mustComeBack(session, run, step, mishap))
      facts << session.steps[step].fact;
  return facts;
}

QStringList ofRace(const QStringList &facts, int race) {
  const QString number = QString::number(race);
  QStringList own;
  for (const auto &fact : facts)
    if (fact.startsWith(number + u'/') || fact.startsWith(number + u' ') ||
        fact.startsWith(QString("Rennen ") + number + u' '))
      own << fact;
  return own;
}

/// The last lines before the mishap, or of all.
QString accountOf(const char *which, const Mishap &mishap, const Run &run) {
  qsizetype end = run.log.size();
  for (qsizetype line = 0; line < run.log.size(); ++line)
    if (run.log[line].endsWith(" !") || run.log[line].endsWith(" *")) {
      end = line + 1;
      break;
    }
  return QString("%1: %2 at %3, code %4%5\n  %6\n%7")
      .arg(which, QString::fromLatin1(mishap.act))
      .arg(mishap.call)
      .arg(run.code)
      .arg(run.killed ? ", killed" : QString(), run.log.mid(qMax<qsizetype>(0, end - 5), 8).join("\n  "),
           QStringList(run.errors.split(u'\n').filter(QRegularExpression("VEXT:|ERROR:|SUMMARY:|runtime error")))
               .join(u'\n'));
}

QList<QByteArray> actsAt(const CallKind &kind) {
  QList<QByteArray> acts;
  if (kind.changes)
    acts << "kill";
  if (kind.changes || kind.name == "sync")
    acts << "cut";
  if (kind.name == "write")
    acts << QByteArrayList{"half", "short"};
  for (const int error : kind.errors)
    if (error != 0)
      acts << QByteArray::number(error);
  for (const int error : kind.errors)
    if (error != 0 && error != EINTR)
      acts << QByteArray::number(error) + '+';
  return acts;
}

std::vector<Case> casesOf(const Case &base, Mishap Case::*mishap, const QStringList &calls) {
  std::vector<Case> cases;
  for (int call = 1; call <= calls.size(); ++call)
    for (const auto &act : actsAt(callKind(calls[call - 1].toStdString())))
      (cases.emplace_back(base).*mishap) = {call, act};
  return cases;
}

} // namespace

bool Run::isAccounted(const Mishap &mishap, size_t wanted) const {
  if (killed)
    return mishap.isDeath();
  if (code >= 70 && code <= 72)
    return errors.contains("VEXT: ");
  return code == 0 && steps.size() == wanted;
}

Drill::Drill(const Session &session) : m_session(session) {
  const Place place;
  m_before = factsOf(place.data());
  const auto before = sizesIn(place.data());
  m_run = runProgram(place, textsOf(session), {});
  m_after = factsOf(place.data());
  for (const auto &[name, size] : sizesIn(place.data()))
    if (const auto old = before.find(name); old != before.end())
      m_sizes[name] = std::min(size, old->second);
}

QString Drill::trouble() const {
  QStringList missing;
  for (const auto &step : m_session.steps)
    if (!step.fact.isEmpty() && !m_after.contains(step.fact))
      missing << step.fact;
  if (m_run.code == 0 && missing.isEmpty())
    return {};
  return accountOf(m_session.name, {}, m_run) + QString("\nmissing: ") + missing.join("; ");
}

std::vector<Case> Drill::cases() const {
  auto all = casesOf({&m_session, {}, {}}, &Case::first, m_run.calls);
  if (!m_session.together.empty())
    std::erase_if(all, [](const Case &one) { return !one.first.isDeath(); });
  return all;
}

std::vector<Case> Drill::casesOfNextStart(const Mishap &death) const {
  const Place place;
  runProgram(place, textsOf(m_session), death);
  return casesOf({&m_session, death, {}}, &Case::second, runProgram(place, JustEnd, {}).calls);
}

Findings Drill::run(const Case &what) const {
  const Place place;
  Findings findings;
  const auto counts = countsIn(place.data());
  const Run session = runProgram(place, textsOf(m_session), what.first);
  findings.account = accountOf("session", what.first, session);
  if (!session.isAccounted(what.first, m_session.steps.size()))
    findings.unreported << "session";
  const auto sizes = sizesIn(place.data());
  const bool lower = isLower(countsIn(place.data()), counts);
  Run next;
  if (what.second.call > 0) {
    next = runProgram(place, JustEnd, what.second);
    findings.account += u'\n' + accountOf("next start", what.second, next);
    if (!next.isAccounted(what.second, 1))
      findings.unreported << "next start";
  }
  const Run last = runProgram(place, JustEnd, {});
  findings.account += u'\n' + accountOf("last start", {}, last);
  if (last.code != 0 || last.steps.size() != 1)
    findings.unreported << "last start";
  findings.offered = next.answers + last.answers > 0;
  for (const auto &[name, size] : m_sizes) {
    const auto now = sizes.find(name);
    if ((now == sizes.end() || now->second < size) && !findings.offered)
      findings.wiped << name;
  }
  if ((lower && !findings.offered) || isLower(countsIn(place.data()), counts))
    findings.wiped << "counts";
  for (const auto &[name, size] : sizesIn(place.data()))
    if (const auto old = m_sizes.find(name); old != m_sizes.end() && size < old->second)
      findings.wiped << name + QString(" at the end");
  judgeFacts(findings, requiredFacts(m_session, session, what.first), place.data());
  return findings;
}

void Drill::judgeFacts(Findings &findings, const QStringList &required, const QString &folder) const {
  QStringList facts;
  try {
    facts = factsOf(folder);
  } catch (const Fault &fault) {
    findings.wiped << fault.report();
    return;
  }
  for (const auto &fact : required)
    if (!facts.contains(fact))
      findings.lost << fact;
  for (const auto &fact : m_before)
    if (m_after.contains(fact) && !facts.contains(fact))
      findings.wiped << fact;
  const auto come = std::count_if(m_session.together.begin(), m_session.together.end(),
                                  [&](const char *fact) { return facts.contains(QString::fromUtf8(fact)); });
  if (come != 0 && come != qsizetype(m_session.together.size()))
    findings.mixed << QStringLiteral("entries");
  if (m_session.replacedRace > 0) {
    const auto race = ofRace(facts, m_session.replacedRace);
    if (race != ofRace(m_before, m_session.replacedRace) && race != ofRace(m_after, m_session.replacedRace))
      findings.mixed << QString("race %1").arg(m_session.replacedRace);
  }
}

double Drill::slowestTyping(int syncDelay) const {
  const Place place;
  const Run run = runProgram(place, textsOf(m_session), {}, syncDelay);
  double slowest = 0;
  for (size_t step = 0; step < std::min(run.steps.size(), m_session.steps.size()); ++step)
    if (isTyping(m_session.steps[step]))
      slowest = std::max(slowest, run.steps[step].took);
  return run.code == 0 ? slowest : Never;
}
