#include "core/RaceFiles.h"
#include "platform/Files.h"
#include "platform/Numbers.h"
#include "platform/qt/CellLabel.h"
#include "raceprep/RaceCopy.h"
#include "support/RoofTest.h"

#include <QClipboard>
#include <QComboBox>
#include <QCryptographicHash>
#include <QDeadlineTimer>
#include <QDir>
#include <QMap>
#include <QRegularExpression>
#include <QSet>

#include <random>

// Somebody presses and types whatever there is. VEXT_OPERATOR_SEED and VEXT_OPERATOR_SECONDS choose another or a longer
// run; with VEXT_OPERATOR_TRACE each step is told before it is taken.

namespace {

using Files = QMap<QString, QByteArray>;

/// What is pasted, beside long ones: each is meant to hurt some field.
const QString Pasted = "|0|-1|1|7|21|83,45|1.5|-0.00001|1E-05|1,7976931348623157E+308|-1E+308|32768|2147483648|"
                       "29.2.2023|1.1.1|31.12.9999|83|BÄR Änne-Łucja ß€|eins, zwei; \"drei\" %1 %2 <b>&x|"
                       "oben\nunten\tdaneben\r|   |Logo.jpg";
const QStringList Texts = Pasted.split(u'|') << QString(400, u'9') << QString(300, u'W');

constexpr Qt::Key Keys[] = {Qt::Key_Tab,  Qt::Key_Backtab, Qt::Key_Return, Qt::Key_Space, Qt::Key_Escape,
                            Qt::Key_Down, Qt::Key_Up,      Qt::Key_Home,   Qt::Key_End,   Qt::Key_PageDown,
                            Qt::Key_5,    Qt::Key_Comma,   Qt::Key_Minus,  Qt::Key_A,     Qt::Key_Delete};

/// Faults that are told: they end the program, and the operator's work is rescued. The others come where the lines of
/// an R file have slipped.
const QStringList ToldFaults = {"das Geschlecht fehlt"};
const QStringList SlippedFaults = {"ist weder 0 noch 1", "keine Zeit in Sekunden",
                                   "die Zahl ist zu groß für ihre Spalte"};

int setting(const char *name, int otherwise) {
  return qEnvironmentVariableIsSet(name) ? qEnvironmentVariableIntValue(name) : otherwise;
}

struct RandomOperatorTest : RoofTest {
  ~RandomOperatorTest() override { programm.reset(); }

  int below(qsizetype limit) { return int(random() % unsigned(limit)); }
  template <typename List> const auto &oneOf(const List &list) { return std::begin(list)[below(std::size(list))]; }
  bool sometimes(int percent) { return below(100) < percent; }

  void startAnew() {
    programm.reset();
    own = std::make_unique<TestStore>();
    own->takeOver(VEXT_BEISPIEL);
    for (const char *name : {"Notizen.txt", "R 77.dat alt", "K 1.lst~"})
      own->writeFile(name, "bleibt");
    own->store.afterSaving = [this] { readAgain(); };
    RoofTest::start(own->store);
    if (!withHints)
      programm->hints().rules = nullptr;
  }

  // Meant: the comma of fractional points makes the lines of the R file slip, and an empty status reads as none.
  bool readsOtherwise(const TeilnehmerZeile &row) const {
    return row.LaeuferNr != 0 && (plainText(row.Punkte).contains(u',') || row.Status1 > 3);
  }

  // What was saved is read again as it stood.
  void readAgain() {
    for (int row = 1; row <= own->store.Teilnehmer.last(); ++row)
      if (readsOtherwise(own->store.Teilnehmer[row])) {
        slipped = true;
        return;
      }
    Store again(own->umgebung);
    again.DatenOrdner = own->store.DatenOrdner;
    again.AktRennen = own->store.AktRennen;
    ASSERT_NO_THROW(RennDatenLaden(again));
    const auto read = raceFiles(again);
    for (const auto &file : raceFiles(own->store))
      EXPECT_TRUE(read.contains(file)) << file.letter << again.AktRennen;
  }

  Files files() const {
    Files all;
    const QDir folder(own->folder.path());
    for (const QString &name : folder.entryList(QDir::Files))
      all[name] = readFile(folder.filePath(name));
    return all;
  }

  QList<QWidget *> windows() {
    QList<QWidget *> all;
    for (auto *widget : QApplication::topLevelWidgets())
      if (widget->isVisible() && qobject_cast<Screen *>(widget))
        all << widget;
    std::sort(all.begin(), all.end(), [](auto *a, auto *b) { return a->objectName() < b->objectName(); });
    return all;
  }

  QList<QWidget *> controls(const QWidget *window) {
    QList<QWidget *> all;
    for (auto *child : window->findChildren<QWidget *>())
      if (child->isVisible() && child->isEnabled() && !child->objectName().startsWith("qt_") &&
          child->objectName() != "mappeOeffnen" && // another program
          (qobject_cast<QAbstractButton *>(child) || qobject_cast<QLineEdit *>(child) ||
           qobject_cast<QComboBox *>(child) || qobject_cast<LineList *>(child) || qobject_cast<CellLabel *>(child)))
        all << child;
    return all;
  }

  void tell(const QWidget *widget, const QString &what) {
    last = widget->window()->objectName() + u'.' + widget->objectName() + u' ' + what;
    if (qEnvironmentVariableIsSet("VEXT_OPERATOR_TRACE"))
      std::fprintf(stderr, "%s\n", qPrintable(last));
  }

  void clickLine(LineList *list) {
    const int line = below(std::max<qsizetype>(list->lines().size(), 1));
    list->scrollTo(list->model()->index(line, 0));
    const QPoint place = list->visualRect(list->model()->index(line, 0)).center();
    tell(list, QString("line %1").arg(line));
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, place);
    if (sometimes(20))
      QTest::mouseDClick(list->viewport(), Qt::LeftButton, {}, place);
  }

  // Pasted, as a person may do it from a table; Ctrl+V takes everything that the clipboard has.
  void paste(QLineEdit *field) {
    const QString text = oneOf(Texts);
    tell(field, text.left(40));
    QTest::mouseClick(field, Qt::LeftButton);
    field->selectAll();
    QApplication::clipboard()->setText(text);
    QTest::keyClick(field, Qt::Key_V, Qt::ControlModifier);
    if (sometimes(30))
      QTest::keyClick(field, Qt::Key_Return);
  }

  void press(QWidget *control) {
    tell(control, "press");
    QTest::mouseClick(control, Qt::LeftButton, {}, {8, control->height() / 2});
  }

  void pressKeys(QWidget *control) {
    for (int count = 1 + below(4); count > 0 && control; --count, control = QApplication::focusWidget()) {
      const Qt::Key key = oneOf(Keys);
      tell(control, QString("key %1").arg(key, 0, 16));
      QTest::keyClick(control, key);
    }
  }

  void work(QWidget *control) {
    if (auto *list = qobject_cast<LineList *>(control))
      clickLine(list);
    else if (auto *field = qobject_cast<QLineEdit *>(control))
      paste(field);
    else if (qobject_cast<QComboBox *>(control))
      control->setFocus(Qt::TabFocusReason);
    else
      press(control);
    if (sometimes(30) && QApplication::focusWidget())
      pressKeys(QApplication::focusWidget());
  }

  // Of some controls the one that was worked least, so that rare screens get their turn; fields get the most turns.
  QWidget *rareOne(const QList<QWidget *> &all) {
    const auto turns = [this](QWidget *control) {
      const int weight = qobject_cast<QLineEdit *>(control) ? 1 : 4;
      return weight * worked[control->window()->objectName() + control->objectName()];
    };
    QWidget *rare = oneOf(all);
    for (int tries = 0; tries < 8; ++tries)
      if (QWidget *other = oneOf(all); turns(other) < turns(rare))
        rare = other;
    return rare;
  }

  void act() {
    QList<QWidget *> all;
    for (auto *window : windows())
      all << controls(window);
    auto *control = rareOne(all);
    auto *window = control->window();
    window->activateWindow();
    QCoreApplication::processEvents();
    if (sometimes(3)) {
      tell(window, "close");
      window->close();
    } else if (control->isVisible() && control->isEnabled()) {
      ++worked[window->objectName() + control->objectName()];
      work(control);
    }
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }

  /// The numbers of the races whose files may be written now.
  QSet<int> open() {
    QSet<int> numbers{own->store.AktRennen};
    if (window("CupKopie"))
      numbers << copyNumber(text("CupKopie", "Text2")).value_or(0);
    return numbers;
  }

  static bool mayChange(const QString &name, const QSet<int> &races) {
    static const QRegularExpression common(
        "\\A(Verein|Laeufer|Rennen)\\.rec\\z|\\A(Vext|TopLeft|Cup|werbung)\\.dat\\z");
    static const QRegularExpression ofRace("\\A[RZKMG] ([0-9]+)\\.(dat|lst)\\z");
    const auto match = ofRace.match(name);
    return common.match(name).hasMatch() || (match.hasMatch() && races.contains(match.captured(1).toInt()));
  }

  void expectOthersUntouched(const Files &before, const QSet<int> &races) {
    const Files after = files();
    QStringList names = before.keys() + after.keys();
    names.removeDuplicates();
    for (const QString &name : names) {
      const bool same = before.value(name) == after.value(name) && before.contains(name) == after.contains(name);
      EXPECT_TRUE(same || mayChange(name, races)) << name.toStdString();
    }
  }

  bool isTold(const Fault &fault) const {
    const QStringList told = slipped ? ToldFaults + SlippedFaults : ToldFaults;
    return std::any_of(told.begin(), told.end(), [&](const QString &words) { return fault.report().contains(words); });
  }

  void step() {
    const Files before = files();
    const auto races = open();
    try {
      act();
      expectOthersUntouched(before, races | open());
      if (windows().isEmpty())
        startAnew();
    } catch (const Fault &fault) {
      EXPECT_TRUE(isTold(fault)) << fault.what();
      ++faults;
      startAnew();
    }
  }

  /// Everything that the operator has and sees, but for the hints.
  QByteArray state() {
    QByteArray all = QByteArray::number(own->beeps);
    for (const auto &[name, bytes] : files().asKeyValueRange())
      all += name.toUtf8() + bytes;
    for (const auto *window : windows())
      for (const auto *control : controls(window)) {
        const auto *list = qobject_cast<const LineList *>(control);
        all += control->objectName().toUtf8() + shownIn(control).toUtf8() + (control->hasFocus() ? "*" : "");
        all += list ? list->lines().join(u'\n').toUtf8() : QByteArray();
      }
    return QCryptographicHash::hash(all, QCryptographicHash::Sha1);
  }

  QList<QByteArray> walk(int steps, bool hints) {
    QList<QByteArray> states;
    withHints = hints;
    random.seed(unsigned(setting("VEXT_OPERATOR_SEED", 1)));
    startAnew();
    while (states.size() < steps && !HasFailure()) {
      step();
      programm->hints().renew();
      states << state();
    }
    return states;
  }

  bool withHints = true;
  std::mt19937 random;
  std::unique_ptr<TestStore> own;
  QString last;
  QMap<QString, int> worked;
  int faults = 0;
  bool slipped = false;
};

} // namespace

TEST_F(RandomOperatorTest, HurtsNothing) {
  const int seed = setting("VEXT_OPERATOR_SEED", 1);
  random.seed(unsigned(seed));
  const QDeadlineTimer end(1000 * setting("VEXT_OPERATOR_SECONDS", 10));
  startAnew();
  int steps = 0;
  for (; !end.hasExpired() && !HasFailure(); ++steps)
    step();
  EXPECT_FALSE(HasFailure()) << last.toStdString();
  std::printf("seed %d: %d steps, %d told faults\n", seed, steps, faults);
}

// VEXT_OPERATOR_STEPS makes it longer.
TEST(RandomOperatorWalk, HasAndSeesTheSameWithAndWithoutHints) {
  struct Walk : RandomOperatorTest {
    void TestBody() override {}
  };
  const int steps = setting("VEXT_OPERATOR_STEPS", 300);
  const auto with = Walk().walk(steps, true), without = Walk().walk(steps, false);
  const auto [one, other] = std::mismatch(with.begin(), with.end(), without.begin(), without.end());
  EXPECT_TRUE(one == with.end() && other == without.end()) << "from step " << (one - with.begin());
}
