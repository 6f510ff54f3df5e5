#pragma once

#include <QStringList>

// Lines of a list as a table: a gap of two blanks or more divides columns.

QStringList columnsOf(const QString &line);
/// Lines for the clipboard: tabs between the columns, a line feed behind each but the last line.
QString clipboardText(const QStringList &lines);
QList<QStringList> tableOf(const QStringList &lines);
/// A table as a file for other programs.
QByteArray csvOf(const QList<QStringList> &table);
