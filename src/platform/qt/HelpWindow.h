#pragma once

#include "platform/Handbook.h"

#include <QTextBrowser>
#include <QWidget>

class QBoxLayout;
class QLineEdit;
class QTreeWidget;

/// Shows the handbook page by page. Pictures come from the folder of the handbook.
class HandbookView : public QTextBrowser {
  Q_OBJECT

public:
  explicit HandbookView(const Handbook &handbook, QWidget *parent = nullptr);
  void show(const Handbook::Place &place);
  int page() const;

protected:
  QVariant loadResource(int type, const QUrl &name) override;
  void doSetSource(const QUrl &url, QTextDocument::ResourceType type) override;

private:
  const Handbook &m_handbook;
};

/// The window of the handbook: contents and search at the left, a page at the right, with back and print. Esc closes.
/// No field is left by going to it.
class HelpWindow : public QWidget {
  Q_OBJECT

public:
  HelpWindow();
  /// Comes to the front with the page for a screen, by its object name.
  void showFor(const QString &screen);

Q_SIGNALS:
  void aboutWanted();

protected:
  void keyPressEvent(QKeyEvent *event) override;

private:
  QBoxLayout *leftColumn();
  QBoxLayout *buttons();
  void fillContents();
  void markContents();
  void search();
  void print();

  Handbook m_handbook = Handbook::installed();
  HandbookView *m_view;
  QTreeWidget *m_contents;
  QLineEdit *m_sought;
};
