#include "support/RoofTest.h"

namespace {

constexpr int LinesARow = 23, NumberLine = 1, TimeLine = 7; // of the file of participants

/// Number n of the race office: 97.45, 94,45, 91.45 and so on.
QByteArray typedTime(int number) {
  return QByteArray::number(100 - 3 * number) + (number % 2 == 1 ? '.' : ',') + "45";
}

using TimingJourneyTest = RoofTest;

} // namespace

// The second race of the example has been timed; its numbers 1 to 21 stand in four classes and are typed over. The
// numbers 4, 11 and 16 keep their status and so no place; 21 and 23 hold their old times when the places are looked at.
TEST_F(TimingJourneyTest, TwentyTimesByKeyboardAndOneCutShortByTheClosing) {
  test.takeOver(VEXT_BEISPIEL);
  auto expected = test.file("R 2.dat").split('\n');
  const auto setTime = [&](int number, const QByteArray &time) {
    for (qsizetype row = 0; row + LinesARow < expected.size(); row += LinesARow)
      if (expected[row + NumberLine].trimmed().toInt() == number)
        expected[row + TimeLine] = time + '\r';
  };

  start();
  press("Form1", "Command3");
  chooseLine("Form4", "List1", 4);
  ASSERT_EQ(text("Form4", "Text2"), "Nachtslalom mit Gästen");
  press("Form4", "Command6");
  arriveAt("Form7");
  for (int number = 1; number <= 20; ++number) {
    key(Qt::Key_Down);
    type(typedTime(number));
    key(Qt::Key_Return);
    setTime(number, typedTime(number).replace('.', ','));
  }

  tabTo("Check1");
  key(Qt::Key_Space);
  ASSERT_EQ(visible(), "Form13 Form7");
  const QStringList result = lines("Form13", "List2");
  QStringList order; // the start numbers of each class by place
  for (const QString &line : result)
    if (line.startsWith("Rang"))
      order << QString();
    else if (!line.isEmpty())
      order.last() += line.mid(31, 5).trimmed() + u' ';
  EXPECT_EQ(order.mid(0, 4), QStringList({"3 2 1 ", "7 6 5 ", "14 12 13 10 9 8 ", "21 20 23 18 19 17 15 "}));
  EXPECT_TRUE(result.contains("   2. UNTERWÖGER Michael          20 Allg. Kl. un    42,45    46,88    89,33     1,57"));

  chooseLine("Form7", "List2", 20);
  type("37.4");
  window("Form7")->close();
  setTime(21, "37,4");
  EXPECT_EQ(visible(), "Form4");
  EXPECT_EQ(test.file("R 2.dat"), expected.join('\n'));
}
