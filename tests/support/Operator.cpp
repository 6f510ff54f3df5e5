// A person at the screens of the real program: a plugin that Qt loads by QT_QPA_GENERIC_PLUGINS=operator, so that the
// program itself knows nothing of it. The lines of OPERATOR_STEPS are done one after the other, each as soon as its
// window stands and its control is enabled:
//
//   Form4.Command6 click          press a button
//   Form7.List2 line 1            press on a line (from 0)
//   Form7.Text1 type 63,45        click into a field, replace its text
//   Form7.Text1 key               Enter
//   Form7 close                   the window's own button
//   Fehlerbericht press Schließen a button by its caption
//   Form7 await weiter            go on when there is a file of that name in the data folder

#include <QAbstractItemView>
#include <QApplication>
#include <QFile>
#include <QGenericPlugin>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include <map>

namespace {

using Action = void (*)(QWidget *, const QString &);

void pressLine(QWidget *list, const QString &line) {
  auto *view = qobject_cast<QAbstractItemView *>(list);
  const QRect place = view->visualRect(view->model()->index(line.toInt(), 0));
  QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, place.center());
}

void type(QWidget *field, const QString &text) {
  QTest::mouseClick(field, Qt::LeftButton);
  qobject_cast<QLineEdit *>(field)->selectAll();
  QTest::keyClicks(field, text);
}

void pressCaption(QWidget *window, const QString &caption) {
  for (auto *button : window->findChildren<QPushButton *>())
    if (button->text() == caption)
      return QTest::mouseClick(button, Qt::LeftButton);
}

const std::map<QString, Action> Actions = {
    {QStringLiteral("click"), [](QWidget *w, const QString &) { QTest::mouseClick(w, Qt::LeftButton); }},
    {QStringLiteral("key"), [](QWidget *w, const QString &) { QTest::keyClick(w, Qt::Key_Return); }},
    {QStringLiteral("close"), [](QWidget *w, const QString &) { w->close(); }},
    {QStringLiteral("line"), pressLine},
    {QStringLiteral("type"), type},
    {QStringLiteral("press"), pressCaption},
    {QStringLiteral("await"), [](QWidget *, const QString &) {}},
};

QWidget *find(const QString &target) {
  const QString screen = target.section(QLatin1Char('.'), 0, 0), control = target.section(QLatin1Char('.'), 1);
  for (auto *window : QApplication::topLevelWidgets())
    if (window->objectName() == screen && window->isVisible())
      return control.isEmpty() ? window : window->findChild<QWidget *>(control);
  return nullptr;
}

bool isReady(const QWidget *target, const QString &verb, const QString &argument) {
  return target && target->isEnabled() && (verb != QStringLiteral("await") || QFile::exists(argument));
}

class Operator : public QObject {
public:
  explicit Operator(const QString &steps) : m_steps(steps.split(QLatin1Char('\n'), Qt::SkipEmptyParts)) { next(); }

private:
  // The next step is planned before this one is done, since a step may open a window that waits for an answer.
  void next() {
    QTimer::singleShot(10, this, [this] {
      if (m_steps.isEmpty())
        return;
      const QString step = m_steps.first(), verb = step.section(QLatin1Char(' '), 1, 1);
      const QString argument = step.section(QLatin1Char(' '), 2);
      auto *target = find(step.section(QLatin1Char(' '), 0, 0));
      const bool ready = isReady(target, verb, argument);
      if (ready)
        m_steps.removeFirst();
      next();
      if (ready)
        Actions.at(verb)(target, argument);
    });
  }

  QStringList m_steps;
};

class OperatorPlugin : public QGenericPlugin {
  Q_OBJECT
  Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "Operator.json")

public:
  QObject *create(const QString &, const QString &) override {
    return new Operator(qEnvironmentVariable("OPERATOR_STEPS"));
  }
};

} // namespace

#include "Operator.moc"
