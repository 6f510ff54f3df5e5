#pragma once

#include "platform/qt/Screen.h"

#include <QTimer>

#include <array>
#include <memory>

class Picture;
struct Store;
namespace Ui {
class Form1;
}

/// The menu. `Label1` the organisation's name, and the makers' web address for a moment when the mouse moves over it
/// (`Timer1`, 2 seconds); `Image1` to `Image8` pictures, one drawn by lot each time; `Label2`, `Label3`, `Label4` the
/// counts of athletes, clubs and races over `Command1`, `Command2`, `Command3`, which open the registers; `Command4`
/// ends the program. At its foot the data folder, with a button that opens it, and one for the handbook.
class Form1 : public Screen {
  Q_OBJECT

public:
  Form1(Desk &desk, Store &store);
  ~Form1() override;

  void becomeActive() override;

Q_SIGNALS:
  /// A register is to be opened, by its object name.
  void openRequested(const QString &screen);
  void hilfeVerlangt();

protected:
  void closing() override;
  bool eventFilter(QObject *watched, QEvent *event) override;

private:
  void makePictures();
  void makeFolderLine();
  void showName();
  void showAddress();

  static constexpr int PictureCount = 8;
  std::unique_ptr<Ui::Form1> ui;
  Store &m_store;
  std::array<Picture *, PictureCount> m_pictures{};
  QTimer m_timer;
};
