#include "platform/qt/Desk.h"
#include "platform/qt/LineList.h"
#include "platform/qt/Screen.h"
#include "support/Print.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QVBoxLayout>

#include <gtest/gtest.h>

namespace {

/// A screen with every kind of control that writes down what happens in which order.
class Probe : public Screen {
public:
  explicit Probe(Desk &desk) : Screen(desk, QStringLiteral("Probe"), 7) {
    auto *layout = new QVBoxLayout(this);
    for (QWidget *control : std::initializer_list<QWidget *>{text, other, combo, check, button, list})
      layout->addWidget(control);
    combo->addItems({QStringLiteral("ok"), QStringLiteral("naS")});
    setUp();
    list->fill(
        {QStringLiteral("A     1"), QStringLiteral("B     2"), QStringLiteral("C     3"), QStringLiteral("D     4")});
    onLeave(text, [this] { note("text=" + text->text().toStdString()); });
    onLeave(combo, [this] { note("combo=" + std::to_string(combo->currentIndex())); });
    connect(button, &QPushButton::clicked, this, [this] { note("click"); });
    connect(check, &QCheckBox::clicked, this, [this] { note("check"); });
    connect(list, &LineList::chosen, this, [this](int row) { note("row" + std::to_string(row)); });
  }

  void start() {
    show();
    activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(this));
    text->setFocus();
    QTest::keyClicks(text, QStringLiteral("83,5"));
    log.clear();
  }

  void note(const std::string &what) { log += (log.empty() ? "" : " ") + what; }
  void becomeActive() override { ++activations; }

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

class FieldGuardTest : public testing::Test {
protected:
  void press(int row) {
    const QRect area = probe.list->visualRect(probe.list->model()->index(row, 0));
    QTest::mouseClick(probe.list->viewport(), Qt::LeftButton, {}, area.center());
  }

  WindowPlaces places;
  int saves = 0;
  Desk desk{places, [this] { ++saves; }};
  Probe probe{desk};
};

} // namespace

TEST_F(FieldGuardTest, LeftBeforeTheClickActs) {
  probe.start();
  QTest::mouseClick(probe.button, Qt::LeftButton);
  EXPECT_EQ(probe.log, "text=83,5 click");
  probe.start();
  press(2);
  EXPECT_EQ(probe.log, "text=83,583,5 row2");
  probe.start();
  QTest::mouseClick(probe.check, Qt::LeftButton, {}, {8, probe.check->height() / 2});
  EXPECT_EQ(probe.log.substr(probe.log.size() - 5), "check");
}

TEST_F(FieldGuardTest, LeftOnceByTabAlsoUntyped) {
  probe.start();
  QTest::keyClick(probe.text, Qt::Key_Tab);
  EXPECT_EQ(probe.log, "text=83,5");
  QTest::keyClick(probe.other, Qt::Key_Backtab);
  QTest::keyClick(probe.text, Qt::Key_Tab);
  EXPECT_EQ(probe.log, "text=83,5 text=83,5");
}

TEST_F(FieldGuardTest, LeftOnceByClosingBeforeTheClosingSteps) {
  probe.start();
  probe.close();
  EXPECT_EQ(probe.log, "text=83,5 save");
  EXPECT_EQ(saves, 1);
}

TEST_F(FieldGuardTest, NotLeftForPopupsHiddenWindowsOrOtherPrograms) {
  probe.start();
  QApplication::setActiveWindow(nullptr);
  QApplication::setActiveWindow(&probe);
  EXPECT_EQ(probe.log, "");
  QTest::keyClick(probe.text, Qt::Key_Menu);
  EXPECT_EQ(probe.log, "");
  if (auto *popup = QApplication::activePopupWidget())
    popup->close();
  probe.hide();
  EXPECT_EQ(probe.log, "text=83,5");
}

TEST_F(FieldGuardTest, LeftBeforeAnotherScreenBecomesActiveButNotForOneThatRaisesItself) {
  Probe beside(desk);
  desk.show(probe);
  probe.start();
  const int before = probe.activations;
  QWidget reminder;
  reminder.setAttribute(Qt::WA_ShowWithoutActivating);
  auto *edit = new QLineEdit(&reminder);
  reminder.show();
  edit->setFocus();
  EXPECT_EQ(probe.log, "");
  desk.show(beside);
  EXPECT_EQ(probe.log, "text=83,5");
  EXPECT_EQ(beside.activations, 1);
  desk.show(probe);
  EXPECT_EQ(probe.activations, before + 1);
}

TEST_F(FieldGuardTest, ComboOpensWithoutLeavingAndTheWheelNeedsTheFocus) {
  probe.start();
  QWheelEvent wheel({5, 5}, probe.combo->mapToGlobal(QPointF(5, 5)), {}, {0, -120}, {}, {}, Qt::NoScrollPhase, false);
  QApplication::sendEvent(probe.combo, &wheel);
  EXPECT_EQ(probe.combo->currentIndex(), 0);
  probe.combo->setFocus();
  QTest::keyClick(probe.combo, Qt::Key_Down);
  press(1);
  EXPECT_EQ(probe.log, "text=83,5 combo=1 row1");
}

TEST_F(FieldGuardTest, EnterPressesTheFocusedButtonOnly) {
  probe.start();
  QTest::keyClick(probe.text, Qt::Key_Return);
  EXPECT_EQ(probe.log, "");
  probe.button->setFocus();
  QTest::keyClick(probe.button, Qt::Key_Return);
  QTest::keyClick(probe.button, Qt::Key_Space);
  EXPECT_EQ(probe.log, "text=83,5 click click");
}

TEST_F(FieldGuardTest, ListIsChosenByPressAndKeysOnly) {
  probe.start();
  probe.list->setFocus();
  probe.list->choose(3);
  probe.log.clear();
  press(3);
  QTest::keyClick(probe.list, Qt::Key_Up);
  QTest::mouseClick(probe.list->viewport(), Qt::RightButton, {}, {5, 5});
  QTest::mouseClick(probe.list->viewport(), Qt::LeftButton, {}, {5, probe.list->viewport()->height() - 1});
  EXPECT_EQ(probe.log, "row3 row2");
}

TEST_F(FieldGuardTest, LineAimedAtIsFoundAgainAfterARefillByTheFieldLeft) {
  probe.start();
  desk.guard().onLeave(probe.text, [this] {
    probe.list->fill({QStringLiteral("C     3"), QStringLiteral("A     1"), QStringLiteral("B     2")});
  });
  press(1); // the line of B
  EXPECT_EQ(probe.log, "row2");
  EXPECT_EQ(probe.list->chosenLine(), 2);
}

TEST_F(FieldGuardTest, PlaceOfTheWindowIsKeptInTwentiethsOfAPoint) {
  places.FensterLeft[7] = 300;
  places.FensterTop[7] = 600;
  Probe placed(desk);
  EXPECT_EQ(placed.pos(), QPoint(20, 40));
  placed.show();
  placed.move(30, 50);
  placed.close();
  EXPECT_EQ(places.FensterLeft[7], 450);
  EXPECT_EQ(places.FensterTop[7], 750);
}

TEST(MarkList, ClickAndBlankToggleOneLineArrowsNone) {
  MarkList list;
  list.fill({QStringLiteral("A"), QStringLiteral("B"), QStringLiteral("C")});
  list.show();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&list));
  const auto press = [&](int row) {
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, list.visualRect(list.model()->index(row, 0)).center());
  };
  press(0);
  press(2);
  QTest::keyClick(&list, Qt::Key_Up);
  EXPECT_EQ(list.marked(), QList<int>({0, 2}));
  QTest::keyClick(&list, Qt::Key_Space);
  press(0);
  EXPECT_EQ(list.marked(), QList<int>({1, 2}));
}
