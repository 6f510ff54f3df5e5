#pragma once

#include <QDialog>

#include <functional>

class QLabel;
class QListWidget;
class QVBoxLayout;

/// The window before the menu: "Mit welcher Veranstaltungsmappe arbeiten?", with the last folders, a new one, any other
/// and the example event. What it returns exists and can be written.
class FolderChoice : public QDialog {
  Q_OBJECT

public:
  /// `trouble` tells why it is asked; empty if there is no special reason. `freshExample` makes a copy of the example
  /// event and returns its place.
  FolderChoice(const QString &trouble, std::function<QString()> freshExample);

  /// The folder; empty if the window was closed.
  QString ask();

private:
  void addLastFolders(QVBoxLayout &column);
  void addButtons(QVBoxLayout &column);
  QVBoxLayout *mainColumn();
  void tell(const QString &trouble);
  void choose(const QString &folder);
  void chooseLine();
  void makeNew(const QString &proposal);
  void searchOther();
  void showExample();

  std::function<QString()> m_freshExample;
  QLabel *m_trouble;
  QListWidget *m_folders;
  QString m_chosen;
};
