#pragma once

#include "platform/qt/Screen.h"

#include <memory>

class QCheckBox;
class QLineEdit;
struct Store;
namespace Ui {
class Form14;
}

/// How the open race is evaluated.
///
/// `Check1` by classes or `Check2` by groups; `Check3` split by sex, `Check4` guests, `Check8` boarders; `Check6` by
/// time or `Check5` by points; `Check7` two runs. `Text1` and `Text2` are the seconds added for guests and men. Ticks
/// act at once, the seconds when the focus leaves them. Closing writes the race record.
class Form14 : public Screen {
  Q_OBJECT

public:
  Form14(Desk &desk, Store &store);
  ~Form14() override;

protected:
  void closing() override;

private:
  void setSwitch(QCheckBox *check, quint8 &field);
  void setPair(QCheckBox *one, QCheckBox *zero, quint8 &field);
  void setSurcharge(QLineEdit *text, double &field);

  Store &m_store;
  std::unique_ptr<Ui::Form14> ui;
};
