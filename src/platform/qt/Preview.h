#pragma once

#include "platform/print/Printers.h"

#include <QWidget>

class PreviewPages;
class PrintOutcomeView;
class QBoxLayout;
class QLabel;
class QMenu;

/// The printer "Vorschau am Bildschirm": one window that shows documents as they come out on paper. A document that
/// ends while it is open is appended, and the first page of what one printing brought is shown. From here they go to
/// any other printer.
///
/// Page keys, Home and End turn pages; plus, minus and the wheel with Ctrl zoom; 0 fits the width, 1 a whole page; Esc
/// closes.
class Preview : public QWidget {
  Q_OBJECT

public:
  Preview();

  /// This window as a printer; the window must outlive it.
  Printer printer();
  /// The printers to which the shown documents can be sent; this one is left out of the menu.
  void offer(Printers &printers) { m_printers = &printers; }
  /// More for the end of that menu, about the race of the last shown document: `possible` asks whether it can be done
  /// now; a failure of `run` is told.
  struct More {
    QString caption;
    std::function<bool(int race)> possible;
    std::function<void(int race)> run;
  };
  void offer(const More &more) { m_more.append(more); }

protected:
  void closeEvent(QCloseEvent *event) override;
  void keyPressEvent(QKeyEvent *event) override;

private:
  QBoxLayout *buttons();
  void append(const Recording &recording);
  void takeFirstSize();
  void fillMenu();
  void send(const Printer &printer);
  void run(const More &more, int race);
  void showPosition();

  PreviewPages *m_pages;
  QLabel *m_position;
  PrintOutcomeView *m_outcome;
  QMenu *m_menu;
  QList<Recording> m_documents;
  Printers *m_printers = nullptr;
  QList<More> m_more;
  /// Documents are coming in from one printing.
  bool m_arriving = false;
};
