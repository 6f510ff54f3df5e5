#pragma once

#include "platform/qt/Screen.h"
#include "printing/Werbung.h"

#include <array>
#include <memory>

class Picture;
class QCheckBox;
class QLineEdit;

namespace Ui {
class Form21;
}

/// "Werbebanner am Deckblatt": up to eight sponsor pictures on the foot of the title page. Of banner i (0 to 7):
/// Check1_i uses it, Text1_i is its file, Text2_i and Text3_i its place on the page in millimetres, Text4_i its size in
/// percent of the natural one, Image1_i the picture in the preview. Image3 is the foot of the page in true scale with
/// Line1 and Label5. Command2 to Command5 move the banner last clicked; Enter in a field renews the preview; Command1
/// closes, which writes werbung.dat.
class Form21 : public Screen {
  Q_OBJECT

public:
  Form21(Desk &desk, Store &store);
  ~Form21() override;

  QList<SavedFile> unsaved() const override;

protected:
  void closing() override;
  bool eventFilter(QObject *watched, QEvent *event) override;

private:
  struct Controls {
    QCheckBox *check;
    QLineEdit *file, *right, *down, *size;
    Picture *image;
  };
  void makePage();
  void makeRow(int i);
  void fill(const Werbung &werbung);
  Werbung werbung() const;
  void hold(QLineEdit *field, const BannerRange &range);
  void select(int i);
  void move(QLineEdit *Controls::*field, int step);
  void stepNumber(QLineEdit *box, int step);
  bool stepByKey(QLineEdit *box, int key);
  void preview();
  void showBanner(const Controls &controls, bool chosen);
  /// On the screen, of a length on paper.
  int pixels(double millimetres) const;

  std::unique_ptr<Ui::Form21> ui;
  Store &m_store;
  std::array<Controls, 8> m_controls{};
  /// 0 to 7; −1 = none.
  int m_selection = -1;
  QByteArray m_atOpening;
  double m_zoom = 1;
};
