#include "platform/qt/HintLine.h"

#include "platform/qt/Look.h"
#include "platform/qt/Screen.h"
#include "support/ScreenTest.h"

#include <QPushButton>
#include <QVBoxLayout>

namespace {

/// A field and a button.
class Plain : public Screen {
public:
  Plain(Desk &desk, Store &) : Screen(desk, "Plain", 7) {
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(field);
    layout->addWidget(button);
    field->setObjectName("Text1");
    button->setObjectName("Command1");
    setUp();
  }
  QLineEdit *field = new QLineEdit;
  QPushButton *button = new QPushButton("fertig");
};

using HintLineTest = ScreenTest<Plain>;

// Inside the frame that tells the focus.
QRgb edgeOf(QWidget *control) {
  return control->grab().toImage().pixel(control->width() / 2, Look::FocusWidth);
}

} // namespace

TEST_F(HintLineTest, TellsWhatTheRulesSayOnceTheScreenIsIdle) {
  int asked = 0;
  QString typed;
  desk.hints().rules = [&](const QString &screen, const ShownValues &shown) -> QList<Hint> {
    ++asked;
    EXPECT_EQ(screen, "Plain");
    typed = shown["Text1"];
    EXPECT_EQ(shown["Fokus"] + shown["Command1"], "Text11");
    if (typed.isEmpty())
      return {};
    return {{"eins", "Text1"}, {"zwei", {}}};
  };
  open();
  form->field->setFocus();
  ASSERT_TRUE(QTest::qWaitFor([&] { return asked > 0; }));
  const QRgb plain = edgeOf(form->field);
  const QRect place = form->button->geometry();
  const auto *line = find<HintLine>("Hinweis");
  asked = 0;
  keys("abc");
  EXPECT_EQ(asked, 0);
  ASSERT_TRUE(QTest::qWaitFor([&] { return asked > 0; }));
  EXPECT_EQ(asked, 1);
  EXPECT_EQ(typed, "abc");
  EXPECT_EQ(line->text(), "(1 von 2) eins");
  EXPECT_EQ(line->accessibleDescription(), "eins\nzwei");
  EXPECT_NE(edgeOf(form->field), plain);
  key(Qt::Key_F2);
  EXPECT_EQ(line->text(), "(2 von 2) zwei");
  desk.hints().renew();
  EXPECT_EQ(line->text(), "(2 von 2) zwei");
  QTest::mouseClick(find("Hinweis"), Qt::LeftButton);
  EXPECT_EQ(line->text(), QStringLiteral("(1 von 2) eins"));
  desk.setHint(QStringLiteral("Sicherung"));
  EXPECT_EQ(line->text(), QStringLiteral("(1 von 3) Sicherung")); // new, and before the one on show
  EXPECT_TRUE(form->field->hasFocus());
  form->field->clear();
  desk.setHint({});
  desk.hints().renew();
  EXPECT_EQ(line->text(), QString());
  EXPECT_EQ(edgeOf(form->field), plain);
  EXPECT_EQ(form->button->geometry(), place);
}
