#undef QT_NO_CAST_FROM_ASCII
#include "printing/Form8.h"
#include "printing/Form28.h"
#include "core/Classes.h"
#include "core/RaceFiles.h"
#include "core/RecordFiles.h"
#include "platform/qt/Desk.h"
#include "platform/qt/LineList.h"
#include "platform/qt/Preview.h"
#include "platform/qt/SystemPrinters.h"
#include "platform/print/PdfFile.h"
#include "support/TestStore.h"
#include <QTest>
#include <QCheckBox>
#include <QPushButton>
#include <QDir>
#include <iostream>
TEST(Shot, Shot) {
  TestStore test;
  for (const auto &f : QDir(QStringLiteral(VEXT_BEISPIEL)).entryList(QDir::Files)) QFile::copy(QStringLiteral(VEXT_BEISPIEL) + "/" + f, test.store.DatenOrdner + f);
  storeStarten(test.store); alleDateienOeffnen(test.store);
  test.store.AktRennen = test.store.RennenIdx = 1; RennenLesen(test.store); RennDatenLaden(test.store); KlassenZuordnen(test.store);
  std::cout << test.store.Rennen.RennenName.toStdString() << " " << test.store.LaeuferAnzahl << "\n";
  Desk desk{test.store.Fenster, [] {}};
  Preview preview;
  Printers printers(systemPrinters, {pdfPrinter("/tmp/gen/Ausdrucke", [] { return QDateTime(QDate(2026,1,15), QTime::currentTime()); }), preview.printer()});
  preview.offer(printers);
  const QString sfx = qEnvironmentVariable("SFX");
  Form8 form(desk, test.store, printers);
  desk.show(form);
  std::cout << form.minimumSizeHint().width() << "x" << form.minimumSizeHint().height() << " " << form.width() << "x" << form.height() << "\n";
  form.grab().save("/tmp/gen/form8" + sfx + ".png");
  QTest::mouseClick(form.findChild<QCheckBox*>("Check2"), Qt::LeftButton);
  QTest::mouseClick(form.findChild<QCheckBox*>("Check1"), Qt::LeftButton);
  auto *l = form.findChild<MarkList*>("List2"); l->setMarked(0, true); l->setMarked(2, true);
  QTest::qWait(50);
  std::cout << form.minimumSizeHint().width() << "x" << form.minimumSizeHint().height() << "\n";
  form.grab().save("/tmp/gen/form8b" + sfx + ".png");
  QTest::mouseClick(form.findChild<QCheckBox*>("Check2"), Qt::LeftButton);
  QTest::mouseClick(form.findChild<QCheckBox*>("Check1"), Qt::LeftButton);
  Form28 f28(desk, printers); desk.show(f28); f28.grab().save("/tmp/gen/form28" + sfx + ".png");
  f28.close();
  QElapsedTimer t; t.start();
  QTest::mouseClick(form.findChild<QPushButton*>("Command3"), Qt::LeftButton);
  preview.grab();
  std::cout << "click to painted " << t.elapsed() << " ms\n";
  QTest::mouseClick(form.findChild<QPushButton*>("Command5"), Qt::LeftButton);
  preview.grab().save("/tmp/gen/preview" + sfx + ".png");
  printers.makeCurrent(printers.all().at(printers.all().size() - 2));
  std::cout << printers.DeviceName().toStdString() << "\n";
  for (const char *b : {"Command3","Command4","Command9","Command2","Command7","Command8","Command5"})
    QTest::mouseClick(form.findChild<QPushButton*>(QLatin1String(b)), Qt::LeftButton);
  form.grab().save("/tmp/gen/form8c" + sfx + ".png");
}
