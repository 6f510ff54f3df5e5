#pragma once

#include <QString>

#include <exception>
#include <system_error>

/// What ends the program unless somebody on its way to the event loop can do without what failed: there the work that
/// lives only in memory is saved, a German report is shown, and the program exits with a code that is not 0.
class Fault : public std::exception {
public:
  explicit Fault(QString report);
  /// German, whole sentences: what happened, where and why.
  const QString &report() const { return m_report; }
  const char *what() const noexcept override { return m_utf8.constData(); }

private:
  QString m_report;
  QByteArray m_utf8;
};

/// A file operation failed; the reason is taken from errno, so it must be thrown straight after the operation. A folder
/// in the file's place is told as such.
class FileFault : public Fault {
public:
  /// `action` is a German phrase for what was tried: "geschrieben", "geöffnet", "gelesen", "gelöscht".
  FileFault(const QString &path, const QString &action);
  /// The same with the reason that a routine of the standard library gave.
  FileFault(const QString &path, const QString &action, const std::error_code &reason);
  /// The same with a reason that errno does not know.
  FileFault(const QString &path, const QString &action, const QString &reason);
};

/// A text in a data file that is no number, or too large for its column. `line` is 1-based; of a long text the report
/// shows the beginning.
class ConversionFault : public Fault {
public:
  ConversionFault(const QString &path, int line, const QString &text, const QString &why);
};

/// An index outside its table. `about`, whole sentences, tells the operator first whom it concerns and what to do.
class RangeFault : public Fault {
public:
  RangeFault(const QString &table, int index, int first, int last, const QString &about = {});
};
