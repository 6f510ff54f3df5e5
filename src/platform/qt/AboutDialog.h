#pragma once

#include <QDialog>

class QGridLayout;

/// "Über VEXT": version, licences, and the folders with a button each that opens them.
class AboutDialog : public QDialog {
  Q_OBJECT

public:
  struct Facts {
    QString version, dataFolder, safetyFolder;
  };

  AboutDialog(const Facts &facts, QWidget *parent);

private:
  void addFolder(QGridLayout &grid, const QString &title, const QString &name, const QString &path);
};
