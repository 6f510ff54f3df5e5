#pragma once

#include "core/StateFiles.h"
#include "person/Person.h"
#include "platform/qt/Desk.h"
#include "platform/qt/LineList.h"
#include "support/StoreTest.h"

#include <QAbstractButton>
#include <QLabel>
#include <QLineEdit>

#include <memory>

/// A store and the screen under test, worked as a person works it: controls are found by name.
template <typename Form> struct ScreenTest : StoreTest {
  /// `more` is what the screen takes beside desk and store.
  void open(auto &...more) { show(std::make_unique<Form>(desk, store, more...)); }
  void show(std::unique_ptr<Form> screen) {
    form = std::move(screen);
    desk.show(*form);
    ASSERT_TRUE(QTest::qWaitForWindowActive(form.get()));
  }

  template <typename Control = QWidget> Control *find(const char *name) {
    return Person::find<Control>(form.get(), name);
  }
  QString label(const char *name) { return find<QLabel>(name)->text(); }
  QString text(const char *name) { return find<QLineEdit>(name)->text(); }
  QStringList lines(const char *name) { return find<LineList>(name)->lines(); }
  bool shown(const char *name) { return find(name)->isVisible(); }
  bool enabled(const char *name) { return find(name)->isEnabled(); }
  bool focused(const char *name) { return find(name)->hasFocus(); }

  void press(const char *name) { Person::press(find(name)); }
  void type(const char *name, const char *keys) {
    find(name)->setFocus();
    find<QLineEdit>(name)->selectAll();
    this->keys(keys);
  }
  void clickLine(const char *name, int line) { Person::chooseLine(find<LineList>(name), line); }
  void doubleClickLine(const char *name, int line) { Person::doubleClickLine(find<LineList>(name), line); }
  void key(Qt::Key key) { Person::key(key); }
  void keys(std::initializer_list<Qt::Key> keys) {
    for (const auto each : keys)
      key(each);
  }
  void keys(const char *text) { Person::keys(text); }

  Desk desk{store.Fenster, [this] { FensterSpeichern(store); }};
  std::unique_ptr<Form> form;
};
