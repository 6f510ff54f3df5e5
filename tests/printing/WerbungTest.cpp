#include "printing/Werbung.h"

#include "support/StoreTest.h"

// What is read is held in its range; a file may end early.
TEST(WerbungTest, FileHasTheTextsAsTypedAndTheOthersAsBuiltIn) {
  TestStore test;
  Werbung werbung = loadBanners(test.store);
  werbung[1] = {true, "Bäckerei.jpg", "56,5", QString(), "100"};
  saveBanners(test.store, werbung);
  EXPECT_EQ(test.file("werbung.dat"),
            QByteArray(" 0 \r\nwerbung1.jpg\r\n20\r\n235\r\n100\r\n 1 \r\nB\xE4"
                       "ckerei.jpg\r\n56,5\r\n\r\n100\r\n"
                       " 0 \r\nwerbung3.jpg\r\n100\r\n235\r\n100\r\n 0 \r\nwerbung4.jpg\r\n135\r\n250\r\n100\r\n"
                       " 0 \r\nwerbung5.jpg\r\n20\r\n258\r\n60\r\n 0 \r\nwerbung6.jpg\r\n53\r\n260\r\n120\r\n"
                       " 0 \r\nwerbung7.jpg\r\n85\r\n255\r\n100\r\n 0 \r\nwerbung8.jpg\r\n116\r\n267\r\n100\r\n"));
  test.writeFile("werbung.dat", " x \r\na.jpg\r\nabc\r\n\r\n801\r\n 1 \r\nb.jpg\r\n-1\r\n284\r\n9\r\n"
                                " 1 \r\nc.jpg\r\n182,5\r\n");
  werbung = loadBanners(test.store);
  QStringList read;
  for (const SponsorBanner &b : {werbung[0], werbung[1], werbung[2]})
    read << b.file << b.right << b.down << b.size;
  EXPECT_EQ(read.join(u'|'), "a.jpg|0|233|800|b.jpg|0|283|10|c.jpg|182,5|235|100");
  EXPECT_TRUE(!werbung[0].chosen && werbung[1].chosen);
}
