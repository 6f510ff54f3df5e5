#include "platform/Faults.h"

#include "support/Print.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <cerrno>

namespace {

QString reportOf(const QString &path, int error) {
  errno = error;
  return FileFault(path, "geöffnet").report();
}

} // namespace

TEST(FaultsTest, TheSystemsReasonsAreGerman) {
  const QString path = "TopLeft.dat";
  EXPECT_EQ(reportOf(path, EEXIST), "Die Datei „TopLeft.dat“ konnte nicht geöffnet werden: unter diesem "
                                    "Namen liegt schon etwas anderes.");
  for (const int error : {ENOSPC, EACCES, EROFS, EISDIR, ENOENT, EIO, EEXIST, ENOTDIR, EMFILE, ENFILE, EINTR, ENOMEM,
                          ENAMETOOLONG, ELOOP, ENODEV})
    EXPECT_FALSE(reportOf(path, error).contains("Betriebssystems (")) << error;
}

TEST(FaultsTest, AFolderInTheFilesPlaceIsToldAndNoReasonIsToldTwice) {
  const QTemporaryDir folder;
  EXPECT_TRUE(reportOf(folder.path(), ENOENT).endsWith("liegt ein Ordner."));
  EXPECT_TRUE(FileFault("x", "gelesen").report().endsWith("keinen Grund."));
}
