#include "printing/Form21.h"

#include "support/ScreenTest.h"

using Form21Test = ScreenTest<Form21>;

TEST_F(Form21Test, TheBannerLastClickedMovesWithinThePage) {
  open();
  press("Command2");
  press("Check1_3");
  for (const char *button : {"Command2", "Command2", "Command3", "Command4", "Command4", "Command5"})
    press(button);
  EXPECT_EQ(text("Text3_3"), "249");
  type("Text3_3", "300");
  EXPECT_EQ(text("Text3_3"), "283");
  press("Command5");
  find("Text4_3")->setFocus();
  keys({Qt::Key_Up, Qt::Key_Up, Qt::Key_Down});
  find("Text1_0")->setFocus();
  press("Command3");
  press("Command1");
  const QByteArray file = test.file("werbung.dat");
  EXPECT_TRUE(file.startsWith(" 0 \r\nwerbung1.jpg\r\n18\r\n235\r\n100\r\n"));
  EXPECT_TRUE(file.contains(" 1 \r\nwerbung4.jpg\r\n137\r\n283\r\n101\r\n"));
}
