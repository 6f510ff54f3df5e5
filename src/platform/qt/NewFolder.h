#pragma once

#include <QDialog>

class QLineEdit;
class QPushButton;

/// The questions for a new data folder: where it is to lie and which organisation holds the event. It makes nothing.
class NewFolder : public QDialog {
  Q_OBJECT

public:
  NewFolder(QWidget *parent, const QString &proposal);

  /// Never empty when the dialog was accepted.
  QString folder() const;
  QString organisation() const;

private:
  void search();

  QLineEdit *m_organisation, *m_folder;
  QPushButton *m_make;
};
