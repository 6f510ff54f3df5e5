#pragma once

class QString;
class QWidget;

/// Opens a file or folder with the program that the desktop has for it; says so if there is none.
void openOutside(QWidget *parent, const QString &path);
