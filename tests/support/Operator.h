#pragma once

#include "platform/qt/Desk.h"
#include "platform/qt/Screen.h"

#include <QApplication>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

#include <gtest/gtest.h>

#include <string>

/// Opens a screen and works it as a person does; finds the controls by their names.
class Operator {
public:
  Operator(Desk &desk, Screen &screen) : m_screen(screen) {
    desk.show(screen);
    EXPECT_TRUE(QTest::qWaitForWindowActive(&screen));
  }

  template <typename T> T *control(const char *group, int n) const {
    return m_screen.findChild<T *>(QString::fromUtf8(group) + QString::number(n));
  }
  QPushButton *button(int n) const { return control<QPushButton>("Command", n); }
  QLineEdit *box(int n) const { return control<QLineEdit>("Text", n); }
  std::string text(int n) const { return box(n)->text().toStdString(); }

  void press(int n) const { QTest::mouseClick(button(n), Qt::LeftButton); }
  /// Replaces the text of a box; the focus stays there.
  void type(int n, const char *what) const {
    box(n)->setFocus();
    box(n)->selectAll();
    QTest::keyClicks(box(n), QString::fromUtf8(what));
  }
  /// A key in whatever has the focus.
  static void key(Qt::Key key) { QTest::keyClick(QApplication::focusWidget(), key); }

private:
  Screen &m_screen;
};
