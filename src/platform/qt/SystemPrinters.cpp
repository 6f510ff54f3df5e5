#include "platform/qt/SystemPrinters.h"

#include "platform/print/Player.h"

#include <QPrinter>
#include <QPrinterInfo>

namespace {

// The sheet is always A4 and never scaled; the margins of the driver play no part.
void printOnPaper(const QString &deviceName, const Recording &recording) {
  QPrinter device(QPrinterInfo::printerInfo(deviceName), QPrinter::HighResolution);
  device.setResolution(1440);
  device.setFullPage(true);
  device.setPageLayout(pageLayout(recording));
  device.setDocName(recording.name);
  device.setCreator(QStringLiteral("VEXT"));
  if (!device.isValid() || !play(recording, device) || device.printerState() == QPrinter::Error)
    throw Fault(QStringLiteral("Der Drucker \"%1\" nimmt den Ausdruck nicht an.").arg(deviceName));
}

} // namespace

SystemPrinters systemPrinters() {
  SystemPrinters result;
  for (const QString &name : QPrinterInfo::availablePrinterNames())
    result.printers.append({name, [name](const Recording &recording) { printOnPaper(name, recording); }});
  result.standard = QPrinterInfo::defaultPrinterName();
  return result;
}
