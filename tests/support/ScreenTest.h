#pragma once

#include "core/StateFiles.h"
#include "platform/qt/Desk.h"
#include "platform/qt/LineList.h"
#include "support/TestStore.h"

#include <QAbstractButton>
#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QTest>

#include <memory>

/// A store and the screen under test, worked as a person works it: controls are found by name.
template <typename Form> class ScreenTest : public StoreTest {
protected:
  /// `more` is what the screen takes beside desk and store.
  void open(auto &...more) { show(std::make_unique<Form>(desk, store, more...)); }
  void show(std::unique_ptr<Form> screen) {
    form = std::move(screen);
    desk.show(*form);
    ASSERT_TRUE(QTest::qWaitForWindowActive(form.get()));
  }

  template <typename Control = QWidget> Control *find(const char *name) {
    return form->template findChild<Control *>(QLatin1String(name));
  }
  QString label(const char *name) { return find<QLabel>(name)->text(); }
  QString text(const char *name) { return find<QLineEdit>(name)->text(); }
  QStringList lines(const char *name) { return find<LineList>(name)->lines(); }
  bool shown(const char *name) { return find(name)->isVisible(); }
  bool enabled(const char *name) { return find(name)->isEnabled(); }
  bool focused(const char *name) { return find(name)->hasFocus(); }

  void press(const char *name) { QTest::mouseClick(find<QAbstractButton>(name), Qt::LeftButton); }
  void type(const char *name, const char *keys) {
    find(name)->setFocus();
    find<QLineEdit>(name)->selectAll();
    this->keys(keys);
  }
  void clickLine(const char *name, int line) {
    auto *list = find<LineList>(name);
    const QRect place = list->visualRect(list->model()->index(line, 0));
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, {5, place.center().y()});
  }
  void doubleClickLine(const char *name, int line) {
    clickLine(name, line);
    auto *list = find<LineList>(name);
    QTest::mouseDClick(list->viewport(), Qt::LeftButton, {}, list->visualRect(list->model()->index(line, 0)).center());
  }
  /// Keys to the control that has the focus.
  void key(Qt::Key key) { QTest::keyClick(QApplication::focusWidget(), key); }
  void keys(std::initializer_list<Qt::Key> keys) {
    for (const auto each : keys)
      key(each);
  }
  void keys(const char *text) { QTest::keyClicks(QApplication::focusWidget(), QLatin1String(text)); }

  Desk desk{store.Fenster, [this] { FensterSpeichern(store); }};
  std::unique_ptr<Form> form;
};
