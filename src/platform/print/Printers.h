#pragma once

#include "platform/Faults.h"
#include "platform/print/Recording.h"

#include <functional>

/// A document could not be printed. Nothing but the printout is missing, so a screen may report it and go on.
class PrintFault : public Fault {
public:
  using Fault::Fault;
};

/// A printer. `print` takes a finished document and gives the path of the file that it wrote, empty if it wrote none; a
/// failure is a Fault.
struct Printer {
  QString DeviceName;
  std::function<QString(const Recording &)> print;
};

/// What the system knows of printers; `standard` is the name of its default one, empty = none.
struct SystemPrinters {
  QList<Printer> printers;
  QString standard;
};

/// The printers of this run: those of the system in its order, then our own. The system is asked only when a list or a
/// name is wanted, as an unreachable print server can block. The current printer is kept until the program ends: at
/// first the system's default one, without it the last of our own.
class Printers {
public:
  /// The system's part, and ours.
  Printers(std::function<SystemPrinters()> system, QList<Printer> own);

  /// Asks the system anew.
  const QList<Printer> &all();
  /// Whether there is no printer at all; asks nobody as long as we have printers of our own.
  bool isEmpty();
  /// Name of the current printer; empty without any.
  QString DeviceName();
  void makeCurrent(const Printer &printer) { m_current = printer; }
  /// Prints on the current printer, or on `printer`. A failure is a PrintFault.
  void print(const Recording &recording);
  void print(const Recording &recording, const Printer &printer);
  /// Path of the file written last in this run; empty if there is none.
  const QString &lastFile() const { return m_lastFile; }

private:
  const Printer &current();

  std::function<SystemPrinters()> m_system;
  QList<Printer> m_own, m_all;
  Printer m_current;
  QString m_lastFile;
};
