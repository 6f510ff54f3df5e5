#include "platform/qt/Screen.h"
#include "support/ScreenTest.h"

#include <QCheckBox>
#include <QComboBox>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

/// A screen with every kind of control that writes down what happens in which order.
class Probe : public Screen {
public:
  Probe(Desk &desk, Store &) : Screen(desk, "Probe", 7) {
    auto *layout = new QVBoxLayout(this);
    for (QWidget *control : std::initializer_list<QWidget *>{text, other, combo, check, button, list})
      layout->addWidget(control);
    list->setObjectName("list");
    combo->addItems({"ok", "naS"});
    setUp();
    list->fill(lines({"A     1", "B     2", "C     3", "D     4"}));
    onLeave(text, [this] { note("text=" + text->text().toStdString()); });
    onLeave(combo, [this] { note("combo=" + std::to_string(combo->currentIndex())); });
    connect(button, &QPushButton::clicked, this, [this] { note("click"); });
    connect(check, &QCheckBox::clicked, this, [this] { note("check"); });
    connect(list, &LineList::chosen, this, [this](int row) { note("row" + std::to_string(row)); });
  }

  static QStringList lines(std::initializer_list<const char *> texts) {
    QStringList all;
    for (const char *text : texts)
      all << text;
    return all;
  }
  void note(const std::string &what) { log += (log.empty() ? "" : " ") + what; }
  void reorder() { list->fill(lines({"C     3", "A     1", "B     2"})); }
  void becomeActive() override {
    if (++activations > 1)
      reorder();
  }

  std::string log;
  int activations = 0;
  QLineEdit *text = new QLineEdit, *other = new QLineEdit;
  QComboBox *combo = new QComboBox;
  QCheckBox *check = new QCheckBox;
  QPushButton *button = new QPushButton;
  LineList *list = new LineList;

protected:
  void closing() override { note("save"); }
};

/// Each test begins in the text field, into which something was typed.
struct FieldGuardTest : ScreenTest<Probe> {
  FieldGuardTest() { start(); }

  void start() {
    open();
    form->text->setFocus();
    keys("83,5");
  }
  void clickLine(int line) { ScreenTest::clickLine("list", line); }
};

} // namespace

TEST_F(FieldGuardTest, LeftBeforeTheClickActs) {
  QTest::mouseClick(form->button, Qt::LeftButton);
  EXPECT_EQ(form->log, "text=83,5 click");
  start();
  clickLine(2);
  EXPECT_EQ(form->log, "text=83,5 row2");
  start();
  QTest::mouseClick(form->check, Qt::LeftButton, {}, {8, form->check->height() / 2});
  EXPECT_EQ(form->log, "text=83,5 check");
}

TEST_F(FieldGuardTest, LeftOnceByTabAlsoUntypedAndByClosingBeforeTheClosingSteps) {
  key(Qt::Key_Tab);
  EXPECT_EQ(form->log, "text=83,5");
  key(Qt::Key_Backtab);
  key(Qt::Key_Tab);
  EXPECT_EQ(form->log, "text=83,5 text=83,5");
  start();
  form->close();
  EXPECT_EQ(form->log, "text=83,5 save");
  EXPECT_TRUE(test.hasFile("TopLeft.dat"));
}

TEST_F(FieldGuardTest, NotLeftForPopupsHiddenWindowsOrOtherPrograms) {
  QApplication::setActiveWindow(nullptr);
  QApplication::setActiveWindow(form.get());
  key(Qt::Key_Menu);
  EXPECT_EQ(form->log, "");
  if (auto *popup = QApplication::activePopupWidget())
    popup->close();
  form->hide();
  EXPECT_EQ(form->log, "text=83,5");
}

TEST_F(FieldGuardTest, LeftBeforeAnotherScreenBecomesActiveButNotForOneThatRaisesItself) {
  Probe beside(desk, store);
  QWidget reminder;
  reminder.setAttribute(Qt::WA_ShowWithoutActivating);
  auto *edit = new QLineEdit(&reminder);
  reminder.show();
  edit->setFocus();
  EXPECT_EQ(form->log, "");
  desk.show(beside);
  EXPECT_EQ(form->log, "text=83,5");
  EXPECT_EQ(beside.activations, 1);
  desk.show(*form);
  EXPECT_EQ(form->activations, 2);
}

TEST_F(FieldGuardTest, ComboOpensWithoutLeavingAndTheWheelNeedsTheFocus) {
  auto *combo = form->combo;
  QWheelEvent wheel({5, 5}, combo->mapToGlobal(QPointF(5, 5)), {}, {0, -120}, {}, {}, Qt::NoScrollPhase, false);
  QApplication::sendEvent(combo, &wheel);
  EXPECT_EQ(combo->currentIndex(), 0);
  combo->setFocus();
  key(Qt::Key_Down);
  clickLine(1);
  EXPECT_EQ(form->log, "text=83,5 combo=1 row1");
}

TEST_F(FieldGuardTest, ListIsChosenByPressAndKeysOnly) {
  form->list->setFocus();
  form->list->choose(3);
  clickLine(3);
  key(Qt::Key_Up);
  QTest::mouseClick(form->list->viewport(), Qt::RightButton, {}, {5, 5});
  QTest::mouseClick(form->list->viewport(), Qt::LeftButton, {}, {5, form->list->viewport()->height() - 1});
  EXPECT_EQ(form->log, "text=83,5 row3 row2");
}

TEST_F(FieldGuardTest, LineAimedAtIsFoundAgainAfterARefillByTheFieldLeft) {
  desk.guard().onLeave(form->text, [this] { form->reorder(); });
  clickLine(1); // the line of B
  EXPECT_EQ(form->log, "row2");
  EXPECT_EQ(form->list->chosenLine(), 2);
}

// The press that brings the window to the front makes it active first; nothing is painted in between.
TEST_F(FieldGuardTest, LineAimedAtIsFoundAgainAfterARefillByTheActivation) {
  Probe beside(desk, store);
  desk.show(beside);
  ASSERT_TRUE(QTest::qWaitForWindowActive(&beside));
  form->log.clear();
  QApplication::setActiveWindow(form.get());
  clickLine(1); // the line of B
  EXPECT_EQ(form->log, "text=83,5 row2");
}

TEST_F(FieldGuardTest, PlaceOfTheWindowIsKeptInTwentiethsOfAPoint) {
  auto &places = store.Fenster;
  places.FensterLeft[7] = 300;
  places.FensterTop[7] = 600;
  open();
  EXPECT_EQ(form->pos(), QPoint(20, 40));
  form->move(30, 50);
  form->close();
  EXPECT_EQ(places.FensterLeft[7], 450);
  EXPECT_EQ(places.FensterTop[7], 750);
}

// A row of 0 and 0 would say that there is no place.
TEST_F(FieldGuardTest, TheCornerOfTheMonitorIsAPlaceToo) {
  open();
  form->move(0, 0);
  form->close();
  EXPECT_NE(QPoint(store.Fenster.FensterLeft[7], store.Fenster.FensterTop[7]), QPoint());
  open();
  EXPECT_EQ(form->pos(), QPoint());
}

TEST_F(FieldGuardTest, SizeOfTheWindowIsKept) {
  const QSize given = form->size() + QSize(60, 40);
  form->resize(given);
  form->close();
  open();
  EXPECT_EQ(form->size(), given);
}

// A number is typed over the one that stands there; a press into what has the focus is meant for a place in it.
TEST_F(FieldGuardTest, FirstPressSelectsAllTheSecondPlacesTheCursor) {
  form->other->setText("0");
  for (const auto &[typed, content] : {std::pair("25", "25"), {"7", "257"}}) {
    QTest::mouseClick(form->other, Qt::LeftButton, {}, {form->other->width() - 5, form->other->height() / 2});
    keys(typed);
    EXPECT_EQ(form->other->text(), content);
  }
}
