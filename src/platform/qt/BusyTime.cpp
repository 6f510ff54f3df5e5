#include "platform/qt/BusyTime.h"

#include <QCoreApplication>
#include <QEvent>

#include <exception>

namespace {

/// Eats what the operator does.
class Eater : public QObject {
protected:
  bool eventFilter(QObject *, QEvent *event) override { return event->spontaneous() && isInput(event->type()); }

private:
  static bool isInput(QEvent::Type type) {
    switch (type) {
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::ShortcutOverride:
    case QEvent::Shortcut:
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::Wheel:
    case QEvent::Close: // of the window's own button
      return true;
    default:
      return false;
    }
  }
};

} // namespace

// Not while a fault is on its way to the report.
BusyTime::~BusyTime() {
  if (std::uncaught_exceptions() > 0)
    return;
  Eater eater;
  qApp->installEventFilter(&eater);
  QCoreApplication::processEvents();
}
