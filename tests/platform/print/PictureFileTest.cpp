#include "platform/print/PictureFile.h"

#include "support/Print.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

TEST(PictureFileTest, APictureOfAGoodCameraIsReadAsFineAsPaperNeeds) {
  const QTemporaryDir folder;
  const QString path = folder.filePath("gross.jpg");
  QImage large(7000, 5000, QImage::Format_RGB888);
  large.fill(Qt::darkGreen);
  ASSERT_TRUE(large.save(path));
  EXPECT_EQ(pictureSize(path), large.size());
  EXPECT_EQ(readPicture(path, QSize(700, 500)).size(), QSize(700, 500));
  EXPECT_EQ(readPicture(path, QSize(700, 6000)).size(), large.size()) << "as fine as it is in one direction";
  EXPECT_TRUE(readPicture(folder.path(), QSize(700, 500)).isNull());
}
