// A person at the screens of the real program: a plugin that Qt loads by QT_QPA_GENERIC_PLUGINS=operator, so that the
// program itself knows nothing of it. The lines of OPERATOR_STEPS are done one after the other, each as soon as its
// window stands and its control is enabled:
//
//   Form4.Command6 click          press a button
//   Form7.List2 line 1            press on a line (from 0)
//   Form7.Text1 type 63,45        click into a field, replace its text
//   Form7.Text1 key               Enter
//   Form3.List1 menu Liste        an entry of its own in the context menu
//   Form7 close                   the window's own button
//   Form7 move 120 80             drag the window by its frame
//   Fehlerbericht press Schließen a button by its caption, or by one of several: Ja|Gut
//   Form7 await weiter            go on when there is a file of that name in the data folder
//   Form7 pause 2000              wait that many milliseconds
//
// OPERATOR_ANSWERS holds further lines, each done whenever its window stands. OPERATOR_LOG names a file to which a line
// for each is added once it is done: "step" or "answer", milliseconds, how many microseconds it took, the line itself.
// An operator whose next step stays impossible for twenty seconds gives up and ends the program.
//
// OPERATOR_PACE is the time before each step in ms, 10 by default; a window manager needs a person's.

#include "person/Person.h"

#include <QAction>
#include <QFile>
#include <QGenericPlugin>
#include <QPushButton>
#include <QTimer>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <map>
#include <unistd.h>

namespace {

using namespace std::chrono;
using Action = void (*)(QWidget *, const QString &);

constexpr int Patience = 2000; // looks
constexpr int GivenUp = 99;

void moveTo(QWidget *window, const QString &place) {
  window->move(place.section(u' ', 0, 0).toInt(), place.section(u' ', 1).toInt());
}

void pressCaption(QWidget *window, const QString &caption) {
  for (auto *button : window->findChildren<QPushButton *>())
    if (caption.split(u'|').contains(button->text()))
      return Person::press(button);
}

void choose(QWidget *control, const QString &entry) {
  for (auto *action : control->actions())
    if (action->text() == entry)
      return action->trigger();
}

const std::map<QString, Action> Actions = {
    {"click", [](QWidget *w, const QString &) { Person::press(w); }},
    {"key", [](QWidget *w, const QString &) { QTest::keyClick(w, Qt::Key_Return); }},
    {"close", [](QWidget *w, const QString &) { w->close(); }},
    {"move", moveTo},
    {"line",
     [](QWidget *w, const QString &line) { Person::chooseLine(qobject_cast<QAbstractItemView *>(w), line.toInt()); }},
    {"menu", choose},
    {"type", Person::type},
    {"press", pressCaption},
    {"await", [](QWidget *, const QString &) {}},
    {"pause", [](QWidget *, const QString &) {}},
};

/// A line of the steps, taken apart.
struct Step {
  explicit Step(const QString &line) : text(line), verb(line.section(u' ', 1, 1)), argument(line.section(u' ', 2)) {}

  QString target() const { return text.section(u' ', 0, 0); }
  milliseconds pause() const { return verb == "pause" ? milliseconds(argument.toInt()) : milliseconds(0); }

  QString text, verb, argument;
};

QList<Step> stepsOf(const char *variable) {
  QList<Step> steps;
  for (const auto &line : qEnvironmentVariable(variable).split(u'\n', Qt::SkipEmptyParts))
    steps << Step(line);
  return steps;
}

QWidget *find(const QString &target) {
  auto *window = Person::window(target.section(u'.', 0, 0));
  const QString control = target.section(u'.', 1);
  return control.isEmpty() ? window : Person::find(window, control);
}

bool isReady(const QWidget *target, const Step &step) {
  return target && target->isEnabled() && (step.verb != "await" || QFile::exists(step.argument));
}

void note(const char *what, const Step &step, microseconds took) {
  if (FILE *log = std::fopen(qgetenv("OPERATOR_LOG").constData(), "ae")) {
    const auto now = duration_cast<milliseconds>(steady_clock::now().time_since_epoch());
    std::fprintf(log, "%s %lld %lld %s\n", what, static_cast<long long>(now.count()),
                 static_cast<long long>(took.count()), step.text.toUtf8().constData());
    std::fclose(log);
  }
}

// By the clock on the wall: the other one may stand still.
void act(const char *what, const Step &step, QWidget *target) {
  const auto begin = system_clock::now();
  Actions.at(step.verb)(target, step.argument);
  note(what, step, duration_cast<microseconds>(system_clock::now() - begin));
}

class Operator : public QObject {
public:
  Operator() { next(m_pace); }

private:
  // The next step is planned before this one is done, since a step may open a window that waits for an answer.
  void next(milliseconds when) {
    QTimer::singleShot(when, this, [this] { look(); });
  }

  void look() {
    for (const auto &answer : m_answers)
      if (auto *window = find(answer.target()); window && window->isEnabled()) {
        wait(answer);
        return act("answer", answer, window);
      }
    if (m_steps.isEmpty())
      return next(m_pace);
    const Step step = m_steps.first();
    auto *target = find(step.target());
    if (!isReady(target, step))
      return wait(step);
    m_looks = 0;
    m_steps.removeFirst();
    next(m_pace + step.pause());
    act("step", step, target);
  }

  void wait(const Step &step) {
    next(m_pace);
    if (++m_looks < Patience)
      return;
    std::fprintf(stderr, "The operator waits in vain: %s\n", step.text.toUtf8().constData());
    _exit(GivenUp);
  }

  QList<Step> m_steps = stepsOf("OPERATOR_STEPS"), m_answers = stepsOf("OPERATOR_ANSWERS");
  int m_looks = 0;
  const milliseconds m_pace{std::max(10, qEnvironmentVariableIntValue("OPERATOR_PACE"))};
};

class OperatorPlugin : public QGenericPlugin {
  Q_OBJECT
  Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "Operator.json")

public:
  QObject *create(const QString &, const QString &) override { return new Operator; }
};

} // namespace

#include "Operator.moc"
