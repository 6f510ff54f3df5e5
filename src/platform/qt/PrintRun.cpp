#include "platform/qt/PrintRun.h"

#include "platform/print/Printers.h"
#include "platform/qt/BusyTime.h"

#include <QMessageBox>

namespace {

QString faultOf(const std::function<void()> &documents) {
  const BusyTime busy;
  try {
    documents();
  } catch (const PrintFault &fault) {
    return fault.report();
  }
  return {};
}

} // namespace

void runPrinting(QWidget *screen, Printers &printers, const std::function<void()> &documents) {
  printers.begin();
  const QString fault = faultOf(documents);
  if (!fault.isEmpty())
    QMessageBox::warning(screen, QStringLiteral("Drucken"), fault);
}
