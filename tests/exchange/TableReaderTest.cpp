#include "exchange/TableReader.h"

#include "support/Print.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

/// The table as "line: field|field" texts.
QStringList read(const QByteArray &bytes) {
  const Table table = tableFrom(bytes, "M.csv");
  QStringList lines;
  for (qsizetype i = 0; i < table.lines.size(); ++i)
    lines << QString("%1: ").arg(table.numbers[i]) + table.lines[i].join(u'|');
  return lines;
}

QString refusalOf(const QByteArray &bytes) {
  try {
    read(bytes);
  } catch (const TableFault &fault) {
    return fault.report();
  }
  return {};
}

} // namespace

TEST(TableReaderTest, Tables) {
  const std::pair<QByteArray, const char *> cases[] = {
      {"a;b\nc;d\n", "1: a|b, 2: c|d"},
      {"a\tb\r\nc\td", "1: a|b, 2: c|d"},
      {"a,b\rc,d\r", "1: a|b, 2: c|d"},
      {"a;\"b;1\"\n\"x \"\"y\"\"\nz\";2\n\n;;\nlast;3\n", "1: a|b;1, 2: x \"y\" z|2, 6: last|3"},
      {"\xEF\xBB\xBF\xC3\xB6;1\n", "1: ö|1"},
      {"\xC3\xB6;1\n", "1: ö|1"},
      {"\xF6;\x80\n", "1: ö|€"},
      {"  a  b ; \"c\" d\n", "1: a b|c d"},
      {"a\nb;c;d\n", "1: a||, 2: b|c|d"},
      {"'=1+1;'-a;'b;-2,5\n", "1: =1+1|-a|'b|-2,5"},
      {"Huber, Anna;1;2,5\nMair, Eva;2;3,5\nBerg, Udo;1,1\n",
       "1: Huber, Anna|1|2,5, 2: Mair, Eva|2|3,5, 3: Berg, Udo|1,1|"},
  };
  for (const auto &[bytes, lines] : cases)
    EXPECT_EQ(read(bytes).join(", "), lines) << bytes.toStdString();
}

TEST(TableReaderTest, HostileTablesAreRefusedInWords) {
  const std::pair<QByteArray, const char *> cases[] = {
      {"", "leer"},
      {"\n ; \n", "leer"},
      {QByteArray("a\0b;c\n", 6), "UTF-8"},
      {QByteArray("\xff\xfe"
                  "a\0;\0",
                  6),
       "UTF-8"},
      {"PK\x03\x04rest", "Arbeitsmappe"},
      {"M\x81ller;1\n", "Zeichensatz"},
      {QByteArray(10'000, ';'), "mehr als 100 Spalten"},
      {QByteArray(200'000, 'x'), "mehr als 1000 Zeichen"},
      {"a;\"" + QByteArray(10'000, 'x') + "\"\n", "Zeile 1"},
      {"a;b\nc;\"d\n", "Zeile 2 ein Anführungszeichen"},
      {QByteArray("a;b\n").repeated(20'001), "mehr als 20000 Zeilen"},
      {'x' + QByteArray(99, ';') + '\n' + QByteArray("a;b\n").repeated(5'001), "mehr als 500000 Felder"},
  };
  for (const auto &[bytes, words] : cases)
    EXPECT_TRUE(refusalOf(bytes).contains(words))
        << bytes.left(20).toStdString() << ": " << refusalOf(bytes).toStdString();
}

TEST(TableReaderTest, AGigabyteIsRefusedUnreadAndAPipeNotWaitedFor) {
  const QTemporaryDir folder;
  QFile file(folder.filePath("M.csv"));
  ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.resize(qint64(1) << 30));
  EXPECT_THROW(readTable(file.fileName()), TableFault);
  EXPECT_THROW(readTable("/dev/zero"), Fault);
  EXPECT_THROW(readTable(folder.path()), Fault);
  EXPECT_THROW(readTable(folder.filePath("absent")), Fault);
}
