#include "platform/qt/LineList.h"

#include "support/Print.h"

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QMenu>
#include <QTest>

#include <gtest/gtest.h>

namespace {

const QStringList Lines{QString("HUBER Anna   --- SC Eins") + QString(20, u' ') + QString("0001000012"),
                        "MAIR Eva        7"};

QString copied(LineList &list, int line) {
  list.choose(line);
  QTest::keyClick(&list, Qt::Key_C, Qt::ControlModifier);
  return QApplication::clipboard()->text();
}

} // namespace

TEST(LineListTest, TakesTheChosenLineOrAllOfThemAsTheyAreKnown) {
  LineList list;
  list.fill(Lines);
  EXPECT_EQ(copied(list, 1), "MAIR Eva\t7");
  list.hideNumbers();
  EXPECT_EQ(copied(list, 0), "HUBER Anna\t--- SC Eins");
  bool asked = false;
  list.addAction("eigenes", [&asked] { asked = true; });
  QContextMenuEvent event(QContextMenuEvent::Mouse, {5, 5}, list.mapToGlobal(QPoint(5, 5)));
  QApplication::sendEvent(list.viewport(), &event);
  auto *menu = list.findChild<QMenu *>();
  ASSERT_TRUE(menu);
  menu->actions().first()->trigger();
  EXPECT_TRUE(asked);
  ASSERT_EQ(menu->actions().size(), 4);
  menu->actions()[2]->trigger();
  EXPECT_EQ(QApplication::clipboard()->text(), "HUBER Anna\t--- SC Eins\nMAIR Eva");
}
