#include "platform/qt/HelpWindow.h"
#include "support/RoofTest.h"

#include <QPushButton>
#include <QTreeWidget>

namespace {

class HelpTest : public RoofTest {
protected:
  HelpTest() {
    test.addClub(QStringLiteral("Axams"));
    start();
  }

  HelpWindow *help() {
    for (auto *widget : QApplication::topLevelWidgets())
      if (auto *window = qobject_cast<HelpWindow *>(widget); window && window->isVisible())
        return window;
    return nullptr;
  }
  /// What is chosen in the contents.
  QString place() { return help()->findChild<QTreeWidget *>()->currentItem()->text(0); }
  QString page() { return help()->findChild<HandbookView *>()->toPlainText(); }
};

TEST_F(HelpTest, OpensAtThePlaceOfTheScreenAndLeavesNoField) {
  press("Form1", "Command2");
  ASSERT_TRUE(QTest::qWaitForWindowActive(window("Form2")));
  tabTo("Text2");
  type("Neustift");
  key(Qt::Key_F1);
  ASSERT_TRUE(help() && QTest::qWaitForWindowActive(help()));
  EXPECT_EQ(place(), QStringLiteral("Vereine"));
  EXPECT_FALSE(test.file(QStringLiteral("Verein.rec")).contains("Neustift"));
  QTest::keyClick(help(), Qt::Key_Escape);
  EXPECT_EQ(visible(), "Form2");
  window("Form2")->activateWindow(); // as a window manager does
  ASSERT_TRUE(QTest::qWaitForWindowActive(window("Form2")));
  EXPECT_EQ(QApplication::focusWidget()->objectName(), QStringLiteral("Text2"));
  key(Qt::Key_Tab);
  EXPECT_TRUE(test.file(QStringLiteral("Verein.rec")).contains("Neustift"));
}

TEST_F(HelpTest, SearchesGoesBackAndShowsPictures) {
  press("Form1", "hilfe");
  ASSERT_TRUE(help() && QTest::qWaitForWindowActive(help()));
  EXPECT_EQ(place(), QStringLiteral("VEXT im Zielhaus"));
  auto *back = help()->findChild<QPushButton *>(QStringLiteral("zurueck"));
  EXPECT_FALSE(back->isEnabled());
  auto *sought = help()->findChild<QLineEdit *>(QStringLiteral("suche"));
  sought->setFocus();
  type("disqualifiziert");
  key(Qt::Key_Return);
  EXPECT_TRUE(page().contains(QStringLiteral("disqualifiziert")));
  EXPECT_EQ(help()->findChild<HandbookView *>()->textCursor().selectedText(), QStringLiteral("disqualifiziert"));
  back->click();
  EXPECT_EQ(place(), QStringLiteral("VEXT im Zielhaus"));
  const QUrl picture(QStringLiteral("bilder/menue.png"));
  auto *document = help()->findChild<HandbookView *>()->document();
  EXPECT_FALSE(document->resource(QTextDocument::ImageResource, picture).value<QImage>().isNull());
  help()->close();
}

} // namespace
