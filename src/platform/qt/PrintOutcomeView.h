#pragma once

#include <QWidget>

struct PrintOutcome;
class QLabel;
class QPushButton;

/// What the last printing left behind: the file with its folder, or how many there are, with buttons that open it and
/// its folder, and pictures that are missing on paper. Nothing is to be seen where there is nothing to tell.
class PrintOutcomeView : public QWidget {
  Q_OBJECT

public:
  explicit PrintOutcomeView(QWidget *parent = nullptr);
  void tell(const PrintOutcome &outcome);

private:
  template <typename Label> Label *addLabel(const QString &name, bool pale);
  QPushButton *addButton(const QString &name, const QString &caption);

  QLabel *m_caption, *m_name, *m_folder, *m_pictures;
  QPushButton *m_open, *m_showFolder;
  QString m_path;
};
