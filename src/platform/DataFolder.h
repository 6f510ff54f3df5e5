#pragma once

#include <QString>

/// The data folder before the start: which one it is to be, and whether it can be worked in.
namespace DataFolder {

/// Whether records or counts of VEXT lie in it.
bool holdsData(const QString &folder);
/// Whether nobody means this folder as a data folder: that of the user or of the system, without data in it. It is the
/// working directory of what is started from a desktop.
bool isAccidental(const QString &folder);
/// Why it cannot be worked in, a German sentence; empty if it can.
QString troubleWith(const QString &folder);
/// A path for a new one in the user's documents, which does not exist yet.
QString proposal();

/// Where the copy of the example event lies.
QString examplePlace();
/// The organisation that holds the example event.
QString exampleOrganisation();
/// Makes that copy anew. A FileFault leaves no copy or an unfinished one.
void copyExample();

} // namespace DataFolder
