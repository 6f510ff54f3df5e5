#pragma once

#include <QAbstractItemView>
#include <QApplication>
#include <QTest>

/// A person at the screens, for the tour, the tests and the measurements: finds windows and controls by name, presses,
/// types and chooses lines.
namespace Person {

/// The window of that name that is to be seen; nullptr if there is none.
QWidget *window(const QString &name);

/// The control of that name; nullptr if there is none, or no window.
template <typename Control = QWidget> Control *find(const QWidget *window, const QString &name) {
  return window ? window->findChild<Control *>(name) : nullptr;
}

/// Presses where the text of a box or an option stands, which is narrower than the control.
inline void press(QWidget *control) {
  QTest::mouseClick(control, Qt::LeftButton, {}, {8, control->height() / 2});
}

/// Presses into a field and types over what stands there.
void type(QWidget *field, const QString &text);

/// Keys and texts go to the control that has the focus.
inline void key(Qt::Key key) {
  QTest::keyClick(QApplication::focusWidget(), key);
}
inline void keys(const QString &text) {
  QTest::keyClicks(QApplication::focusWidget(), text);
}

/// Presses on a line, counted from 0, which is brought to sight.
void chooseLine(QAbstractItemView *list, int line);
void doubleClickLine(QAbstractItemView *list, int line);

} // namespace Person
