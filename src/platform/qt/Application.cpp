#include "platform/qt/Application.h"

#include "platform/qt/FaultReport.h"

bool Application::notify(QObject *receiver, QEvent *event) {
  try {
    return QApplication::notify(receiver, event);
  } catch (...) {
    FaultReport::reportCurrent();
  }
}
