#pragma once

#include <QStringList>

/// What VEXT was called with.
struct CommandLine {
  /// `arguments` without the program's name.
  static CommandLine read(const QStringList &arguments);
  /// What `--help` prints; ends with a line end.
  static QString help();

  /// The data folder; empty = the working directory.
  QString folder;
  /// Name of the organisation, to be kept for the data folder; empty = as it is.
  QString organisation;
  /// The data folder is to be asked for.
  bool choose = false;
  bool wantsHelp = false, wantsVersion = false;
  /// The first argument that is not understood; empty = none.
  QString mistake;
};
