// Runs every mishap at every file call of every session, and prints what came of it.

#include "safety/Drill.h"

#include <QGuiApplication>
#include <QTextStream>

#include <algorithm>
#include <atomic>
#include <map>
#include <mutex>
#include <thread>

namespace {

constexpr int Workers = 2;
constexpr int SyncDelay = 300;

struct Line {
  int runs = 0, lost = 0, wiped = 0, mixed = 0, unreported = 0;
};

QString nameOf(const Case &what) {
  static const std::map<QByteArray, QString> errors = {
      {"28", "ENOSPC"}, {"5", "EIO"}, {"13", "EACCES"}, {"24", "EMFILE"}, {"4", "EINTR"}};
  const bool second = what.second.call > 0;
  QByteArray act = second ? what.second.act : what.first.act;
  const bool forGood = act.endsWith('+');
  if (forGood)
    act.chop(1);
  const auto error = errors.find(act);
  return QLatin1String(what.session->name) + QString(" | ") +
         (error == errors.end() ? QString::fromLatin1(act) : error->second + (forGood ? " for good" : " once")) +
         (second ? ", next start" : QString());
}

class Table {
public:
  void add(const Case &what, const Findings &findings) {
    const std::scoped_lock lock(m_guard);
    auto &line = m_lines[nameOf(what)];
    ++line.runs;
    line.lost += !findings.lost.isEmpty();
    line.wiped += !findings.wiped.isEmpty();
    line.mixed += !findings.mixed.isEmpty();
    line.unreported += !findings.unreported.isEmpty();
    if (!findings.all().isEmpty())
      tell(what, findings);
    if (findings.offered && what.second.call == 0 && (what.first.act == "kill" || what.first.act == "half"))
      m_offered[what.session].push_back(what.first);
  }
  void print() {
    out << "| session | what | runs | lost | wiped | mixed | unreported |\n| --- | --- | --- | --- | --- | --- | --- "
           "|\n";
    for (const auto &[name, line] : m_lines)
      out << "| " << name << " | " << line.runs << " | " << line.lost << " | " << line.wiped << " | " << line.mixed
          << " | " << line.unreported << " |\n";
    out.flush();
  }
  bool isClean() const {
    return std::all_of(m_lines.begin(), m_lines.end(), [](const auto &line) {
      return line.second.lost + line.second.wiped + line.second.mixed + line.second.unreported == 0;
    });
  }
  /// Deaths after which the next start has something to do: the first, the last and the one between.
  std::vector<Mishap> deathsOf(const Session &session) {
    auto &all = m_offered[&session];
    std::sort(all.begin(), all.end(), [](const Mishap &a, const Mishap &b) { return a.call < b.call; });
    return all.size() < 3 ? all : std::vector<Mishap>{all.front(), all[all.size() / 2], all.back()};
  }

private:
  void tell(const Case &what, const Findings &findings) {
    out << "== " << nameOf(what) << "\n";
    for (const auto &[label, texts] : {std::pair("lost", findings.lost),
                                       {"wiped", findings.wiped},
                                       {"mixed", findings.mixed},
                                       {"unreported", findings.unreported}})
      if (!texts.isEmpty())
        out << label << ": " << texts.join("; ") << "\n";
    out << findings.account << "\n\n";
    out.flush();
  }

  std::mutex m_guard;
  QTextStream out{stdout};
  std::map<QString, Line> m_lines;
  std::map<const Session *, std::vector<Mishap>> m_offered;
};

void runAll(const Drill &drill, const std::vector<Case> &cases, size_t each, Table &table) {
  std::atomic<size_t> next = 0;
  std::vector<std::jthread> workers;
  workers.reserve(Workers);
  for (int worker = 0; worker < Workers; ++worker)
    workers.emplace_back([&] {
      for (size_t i = next.fetch_add(each); i < cases.size(); i = next.fetch_add(each))
        table.add(cases[i], drill.run(cases[i]));
    });
}

void runSession(const Session &session, size_t each, Table &table) {
  const Drill drill(session);
  if (const QString trouble = drill.trouble(); !trouble.isEmpty())
    qFatal("In peace: %s", qPrintable(trouble));
  runAll(drill, drill.cases(), each, table);
  for (const auto &death : table.deathsOf(session))
    runAll(drill, drill.casesOfNextStart(death), each, table);
}

int runAllSessions(size_t each) {
  Table table;
  for (const auto &session : sessions())
    runSession(session, each, table);
  const double slowest = Drill(sessions().front()).slowestTyping(SyncDelay);
  table.print();
  QTextStream(stdout) << "\nTyping waited at most, while each sync takes " << SyncDelay << " ms: " << slowest
                      << " ms\n";
  return table.isClean() && slowest < SyncDelay ? 0 : 1;
}

int runOne(const QStringList &words) {
  Table table;
  const auto session = std::find_if(sessions().begin(), sessions().end(),
                                    [&](const Session &each) { return each.name == words.first(); });
  if (session == sessions().end())
    return 2;
  const auto mishap = [&](qsizetype at) { return Mishap{words.value(at).toInt(), words.value(at + 1).toLatin1()}; };
  const Drill drill(*session);
  const Findings findings = drill.run({&*session, mishap(1), mishap(3)});
  QTextStream(stdout) << findings.all().join(u'\n') << "\n" << findings.account << "\n";
  return findings.all().isEmpty() ? 0 : 1;
}

} // namespace

// Without arguments all mishaps, with a number n each n-th; or one: the name of the session, call and act, and call and
// act for the start after it.
int main(int argc, char **argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QGuiApplication application(argc, argv);
  const QStringList words = QGuiApplication::arguments().mid(1);
  return words.size() > 1 ? runOne(words) : runAllSessions(size_t(std::max(1, words.value(0).toInt())));
}
