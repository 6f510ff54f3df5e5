#include "support/RoofTest.h"

#include <QAccessible>
#include <QComboBox>
#include <QSet>

// What a screen reader is told.

namespace {

// Qt tells the chosen entry of a combo as its name; what it is for is told by its caption, or by a description.
QString toldName(QWidget *control) {
  const auto *told = QAccessible::queryAccessibleInterface(control);
  if (!qobject_cast<QComboBox *>(control))
    return told->text(QAccessible::Name);
  const auto captions = told->relations(QAccessible::Label);
  return captions.isEmpty() ? told->text(QAccessible::Description) : captions[0].first->text(QAccessible::Name);
}

class Accessible : public RoofTest {
protected:
  ~Accessible() override { programm.reset(); }

  /// Each control of the screen has a name of its own, hidden ones too, and each list tells its lines.
  void expectTold(const char *screen) {
    SCOPED_TRACE(screen);
    QSet<QString> names;
    ASSERT_TRUE(window(screen));
    for (auto *control : window(screen)->findChildren<QWidget *>())
      if (control->focusPolicy() != Qt::NoFocus && control->parentWidget()->objectName() != QLatin1String("gridCard") &&
          !control->objectName().isEmpty() && !control->objectName().startsWith(QLatin1String("qt_"))) {
        const QString name = toldName(control);
        EXPECT_FALSE(name.isEmpty()) << control->objectName().toStdString();
        EXPECT_FALSE(names.contains(name)) << control->objectName().toStdString() << ": " << name.toStdString();
        names << name;
      }
    for (auto *list : window(screen)->findChildren<LineList *>())
      if (!list->lines().isEmpty()) {
        EXPECT_EQ(QAccessible::queryAccessibleInterface(list)->child(0)->text(QAccessible::Name), list->lines()[0]);
      }
  }
  void open(const char *opener, const char *button, const char *screen) {
    press(opener, button);
    expectTold(screen);
  }
  void openAndClose(const char *opener, const char *button, const char *screen) {
    open(opener, button, screen);
    window(screen)->close();
  }
};

} // namespace

TEST_F(Accessible, EveryControlHasANameOfItsOwnAndListsTellTheirLines) {
  test.takeOver(QStringLiteral(VEXT_BEISPIEL));
  start();
  expectTold("Form1");
  openAndClose("Form1", "Command1", "Form3");
  openAndClose("Form1", "Command2", "Form2");
  open("Form1", "Command3", "Form4");
  for (const auto &[button, screen] :
       {std::pair("Command4", "Form5"), std::pair("Command10", "Form11"), std::pair("Command13", "Form10"),
        std::pair("Command14", "Form14"), std::pair("Command15", "Form15"), std::pair("Command5", "Form6"),
        std::pair("Command11", "Form12"), std::pair("Command12", "Form16"), std::pair("Command17", "Form20"),
        std::pair("Command18", "Form19"), std::pair("Command16", "CupKopie"), std::pair("Command9", "Form9")})
    openAndClose("Form4", button, screen);
  open("Form4", "Command6", "Form7");
  openAndClose("Form7", "Check1", "Form13");
  chooseLine("Form7", "List2", 1);
  openAndClose("Form7", "Command7", "Form18");
  window("Form7")->close();
  open("Form4", "Command8", "Form8");
  openAndClose("Form8", "Command6", "Form28");
  openAndClose("Form8", "Command10", "Form21");
}

TEST_F(Accessible, ANumberInUseIsToldInWordsToo) {
  test.takeOver(QStringLiteral(VEXT_BEISPIEL));
  start();
  press("Form1", "Command3");
  chooseLine("Form4", "List1", 4);
  press("Form4", "Command5");
  chooseLine("Form6", "List1", 0);
  auto *number = control<QLineEdit>("Form6", "Text1");
  for (const auto &[typed, told] : {std::pair("2", "schon vergeben"), std::pair("999", "")}) {
    number->setFocus();
    number->selectAll();
    type(typed);
    press("Form6", "Command5");
    EXPECT_EQ(QAccessible::queryAccessibleInterface(number)->text(QAccessible::Description), QLatin1String(told));
  }
}
