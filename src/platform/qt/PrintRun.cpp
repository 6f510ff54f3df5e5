#include "platform/qt/PrintRun.h"

#include "platform/print/Printers.h"

#include <QGuiApplication>
#include <QMessageBox>

namespace {

struct BusyPointer {
  BusyPointer() { QGuiApplication::setOverrideCursor(Qt::WaitCursor); }
  ~BusyPointer() { QGuiApplication::restoreOverrideCursor(); }
  Q_DISABLE_COPY(BusyPointer)
};

QString faultOf(const std::function<void()> &documents) {
  const BusyPointer busy;
  try {
    documents();
  } catch (const PrintFault &fault) {
    return fault.report();
  }
  return {};
}

} // namespace

void runPrinting(QWidget *screen, const std::function<void()> &documents) {
  const QString fault = faultOf(documents);
  if (!fault.isEmpty())
    QMessageBox::warning(screen, QStringLiteral("Drucken"), fault);
}
