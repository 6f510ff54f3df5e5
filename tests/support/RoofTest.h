#pragma once

#include "Programm.h"
#include "person/Person.h"
#include "platform/qt/LineList.h"
#include "platform/qt/Screen.h"
#include "support/FakePrinters.h"
#include "support/StoreTest.h"

#include <QAbstractButton>
#include <QLineEdit>

#include <memory>

/// The whole program over a store, worked as a person works it: screens and controls are found by name.
class RoofTest : public StoreTest {
protected:
  // The menu's closing ends the event loop of the application; no message box would wait until that has begun anew.
  ~RoofTest() override {
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QMetaObject::invokeMethod(
        qApp, [] { QCoreApplication::exit(); }, Qt::QueuedConnection);
    QCoreApplication::exec();
  }

  void start(Store &started) {
    programm = std::make_unique<Programm>(started, *printers.printers);
    programm->start();
  }
  void start() { start(store); }

  Screen *window(const char *name) { return qobject_cast<Screen *>(Person::window(name)); }
  template <typename T> T *control(const char *screen, const char *name) {
    return Person::find<T>(window(screen), name);
  }
  QString text(const char *screen, const char *box) { return control<QLineEdit>(screen, box)->text(); }
  QStringList lines(const char *screen, const char *list) { return control<LineList>(screen, list)->lines(); }
  /// The names of all windows that are to be seen.
  std::string visible() {
    QStringList names;
    for (auto *widget : QApplication::topLevelWidgets())
      if (widget->isVisible())
        names << widget->objectName();
    names.sort();
    return names.join(u' ').toStdString();
  }

  void press(const char *screen, const char *button) { Person::press(control<QAbstractButton>(screen, button)); }
  void press(const char *screen, std::initializer_list<const char *> buttons) {
    for (const char *button : buttons)
      press(screen, button);
  }
  void chooseLine(const char *screen, const char *name, int line) {
    window(screen)->activateWindow(); // as a press does
    Person::chooseLine(control<LineList>(screen, name), line);
  }

  // The keyboard: keys go to the control that has the focus.

  /// Waits until the keys go to this screen, the only one that is to be seen.
  void arriveAt(const char *screen) {
    ASSERT_EQ(visible(), screen);
    ASSERT_TRUE(QTest::qWaitForWindowActive(window(screen)));
  }
  void key(Qt::Key key) { Person::key(key); }
  void keys(std::initializer_list<Qt::Key> keys) {
    for (const auto each : keys)
      key(each);
  }
  void type(const char *keys) { Person::keys(keys); }
  void tabTo(const char *name) {
    for (int steps = 0; QApplication::focusWidget()->objectName() != name; ++steps) {
      ASSERT_LT(steps, 50) << name << " is not reached by the Tab key";
      key(Qt::Key_Tab);
    }
  }

  FakePrinters printers;
  std::unique_ptr<Programm> programm;
};
