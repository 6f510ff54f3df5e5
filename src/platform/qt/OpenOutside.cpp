#include "platform/qt/OpenOutside.h"

#include <QDesktopServices>
#include <QMessageBox>
#include <QUrl>

void openOutside(QWidget *parent, const QString &path) {
  if (!QDesktopServices::openUrl(QUrl::fromLocalFile(path)))
    QMessageBox::information(parent, parent->windowTitle(),
                             QStringLiteral("Es gibt kein Programm, das „%1“ öffnet.").arg(path));
}
