#include "platform/qt/SystemPrinters.h"

#include "platform/print/Player.h"
#include "platform/print/Recording.h"

#include <QPrinter>
#include <QPrinterInfo>

namespace {

[[noreturn]] void refuse(const QString &deviceName) {
  throw Fault(QStringLiteral("Der Drucker „%1“ nimmt den Ausdruck nicht an.").arg(deviceName));
}

// The sheet is always A4 and never scaled; the margins of the driver play no part.
QString printOnPaper(const QString &deviceName, const Recording &recording) {
  const QPrinterInfo info = QPrinterInfo::printerInfo(deviceName);
  if (info.isNull())
    refuse(deviceName);
  QPrinter device(info, QPrinter::HighResolution);
  device.setResolution(1440);
  device.setFullPage(true);
  device.setPageLayout(pageLayout(recording));
  device.setDocName(recording.title);
  device.setCreator(QStringLiteral("VEXT"));
  if (!play(recording, device) || device.printerState() == QPrinter::Error)
    refuse(deviceName);
  return {};
}

} // namespace

SystemPrinters systemPrinters() {
  SystemPrinters result;
  for (const QString &name : QPrinterInfo::availablePrinterNames())
    result.printers.append({name, [name](const Recording &recording) { return printOnPaper(name, recording); }});
  result.standard = QPrinterInfo::defaultPrinterName();
  return result;
}
