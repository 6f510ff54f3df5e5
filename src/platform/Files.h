#pragma once

#include <QByteArray>
#include <QString>

// Whole files with every step checked; a failure is a FileFault.

QByteArray readFile(const QString &path);
/// Creates the file anew in place; earlier content is gone.
void writeFile(const QString &path, const QByteArray &bytes);
/// Writes the file whole or not at all, also when the power goes in between.
void replaceFile(const QString &path, const QByteArray &bytes);
/// Deletes the file if it exists.
void removeFile(const QString &path);
