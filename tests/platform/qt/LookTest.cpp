#include "platform/qt/Look.h"

#include "platform/qt/FarbTabelle.h"

#include <QApplication>
#include <QWidget>

#include <gtest/gtest.h>

namespace {

constexpr qreal Readable = 4.5, Visible = 3;

/// What a desktop shows its windows in.
struct Desktop {
  const char *name;
  QRgb window, text;
};
void PrintTo(const Desktop &desktop, std::ostream *out) {
  *out << desktop.name;
}

class LookTest : public testing::TestWithParam<Desktop> {
protected:
  LookTest() {
    QPalette desktop;
    desktop.setColor(QPalette::Window, GetParam().window);
    desktop.setColor(QPalette::WindowText, GetParam().text);
    QApplication::setPalette(Look::paletteFor(desktop));
  }
  ~LookTest() override { QApplication::setPalette(before); }

  const QPalette before = QApplication::palette();
};

/// Letters, frames, focus and warnings upon one ground.
void expectSeen(const QPalette &palette, QPalette::ColorRole ground, std::initializer_list<QPalette::ColorRole> signs) {
  const QColor under = palette.color(ground);
  for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled})
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
      EXPECT_GE(Look::contrast(palette.color(group, role), under), Readable) << under.name().toStdString() << role;
  for (const auto role : signs)
    EXPECT_GE(Look::contrast(palette.color(role), under), Visible) << under.name().toStdString() << role;
  EXPECT_GE(Look::contrast(palette.color(QPalette::HighlightedText), palette.color(QPalette::Highlight)), Readable);
}

} // namespace

TEST_P(LookTest, LettersAreReadAndFocusAndWarningsSeenOnEveryGround) {
  const QPalette palette = QApplication::palette();
  EXPECT_EQ(palette.color(QPalette::Window).lightness() > 128, qGray(GetParam().window) > 128);
  for (const auto ground : {QPalette::Window, QPalette::Base, QPalette::Button}) {
    expectSeen(palette, ground, {QPalette::Mid, QPalette::Highlight, QPalette::BrightText});
    EXPECT_GE(Look::contrast(palette.color(QPalette::PlaceholderText), palette.color(ground)), Readable);
  }
  for (const QRgb ground : {FarbTabelle::Hellgrau, FarbTabelle::BlassCyan, FarbTabelle::BlassRot,
                            FarbTabelle::BlassGruen, FarbTabelle::Weiss, 0xFF0000u}) {
    QWidget field;
    Look::setGround(&field, ground);
    expectSeen(field.palette(), QPalette::Base, {QPalette::Highlight, QPalette::BrightText});
  }
}

INSTANTIATE_TEST_SUITE_P(Desktops, LookTest,
                         testing::Values(Desktop{"light", 0xEFEFEF, 0x000000}, Desktop{"dark", 0x2E2E2E, 0xEEEEEC},
                                         Desktop{"blackOnWhite", 0xFFFFFF, 0x000000},
                                         Desktop{"whiteOnBlack", 0x000000, 0xFFFFFF}),
                         [](const auto &desktop) { return std::string(desktop.param.name); });
