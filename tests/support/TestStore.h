#pragma once

#include "core/RecordFiles.h"
#include "core/Start.h"

#include <QTemporaryDir>

/// A store in a folder of its own, for tests and measurements, as after the start on 15 January 2026 and with the
/// record files open.
class TestStore {
public:
  TestStore() {
    umgebung.today = [] { return QDate(2026, 1, 15); };
    umgebung.beep = [this] { ++beeps; };
    umgebung.generator.seed(1);
    store.DatenOrdner = folder.path() + u'/';
    startStore(store);
    openRecordFiles(store);
  }

  /// Copies the files of a folder into the own one and starts anew with them.
  void takeOver(const QString &from);
  /// The next club, named and abbreviated alike; gives its number.
  int addClub(const QString &name);
  /// The next athlete, born on 1 July of `year`; gives his number.
  int addAthlete(const QString &name, int year, int sex, int club = 0);
  /// The next race with these two-valued criteria: by classes, by time. It becomes the open one, with its tables
  /// loaded.
  int addRace(const QString &name);
  /// Puts an athlete into the next free participant row and gives the row.
  int enter(int athlete, int startNr = 0);

  QByteArray file(const QString &name) const;
  bool hasFile(const QString &name) const;
  void writeFile(const QString &name, const QByteArray &bytes) const;

  QTemporaryDir folder;
  Umgebung umgebung;
  int beeps = 0;
  Store store{umgebung};
};
