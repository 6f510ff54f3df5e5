#include "printing/Form28.h"

#include "support/FakePrinters.h"
#include "support/ScreenTest.h"

using Form28Test = ScreenTest<Form28>;

TEST_F(Form28Test, TheChosenPrinterBecomesTheCurrentOne) {
  FakePrinters fake;
  form = std::make_unique<Form28>(desk, *fake.printers);
  desk.show(*form);
  EXPECT_EQ(lines("List1"), (QStringList{"Laser", "Alt"}));
  EXPECT_FALSE(find("Command2")->isEnabled());
  clickLine("List1", 1);
  EXPECT_EQ(fake.printers->DeviceName(), "Laser");
  press("Command2");
  EXPECT_FALSE(form->isVisible());
  EXPECT_EQ(fake.printers->DeviceName(), "Alt");
}
