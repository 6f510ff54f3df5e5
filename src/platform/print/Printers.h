#pragma once

#include "platform/Faults.h"
#include "platform/print/Recording.h"

#include <functional>

/// A document could not be printed. Nothing but the printout is missing, so a screen may report it and go on.
class PrintFault : public Fault {
public:
  using Fault::Fault;
};

/// Prints `count` documents one after the other; `print` takes the number of one, from 0, and gives whose it is. A
/// PrintFault ends the series and tells which had been printed.
void printSeries(qsizetype count, const std::function<QString(qsizetype)> &print);

/// What a printing left behind.
struct PrintOutcome {
  /// Paths of the files written, in order.
  QStringList files;
  /// Pictures that could not be read and are missing on paper, each once.
  QStringList unreadablePictures;
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

/// The printers of this run: those of the system in its order, then our own, then those that write files for other
/// programs. The system is asked only when a list or a name is wanted, as an unreachable print server can block. The
/// current printer is kept until the program ends: at first the system's default one, without it the last of our own.
class Printers {
public:
  Printers(std::function<SystemPrinters()> system, QList<Printer> own, QList<Printer> exports = {});

  /// Asks the system anew.
  const QList<Printer> &all();
  /// Whether there is no printer at all; asks nobody as long as we have printers of our own.
  bool isEmpty();
  /// Name of the current printer; empty without any.
  QString DeviceName();
  void makeCurrent(const Printer &printer) { m_current = printer; }
  /// Begins a printing of one document or several, with an outcome of its own.
  void begin() { m_outcome = {}; }
  /// Prints on the current printer, or on `printer`. A failure is a PrintFault.
  void print(const Recording &recording);
  void print(const Recording &recording, const Printer &printer);
  /// Of the present or last printing.
  const PrintOutcome &outcome() const { return m_outcome; }

private:
  const Printer &current();
  void noteUnreadablePictures(const Recording &recording);

  std::function<SystemPrinters()> m_system;
  QList<Printer> m_own, m_exports, m_all;
  Printer m_current;
  PrintOutcome m_outcome;
};
