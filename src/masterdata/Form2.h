#pragma once

#include "core/Store.h"
#include "platform/qt/Screen.h"

#include <memory>

class QLineEdit;

namespace Ui {
class Form2;
}

/// "Verein": the register of clubs, record by record. Each field is stored when the focus leaves it; there is no button
/// for it, and none to delete: a club without a name is left out of the list.
///
/// Text1 index · Text2 to Text11 the fields of the club · List1 all clubs · Command2 "-" and Command3 "+" the club
/// before and behind, at the end a new one · Command1 closes the screen and the file.
class Form2 : public Screen {
  Q_OBJECT

public:
  Form2(Desk &desk, Store &store);
  ~Form2() override;

protected:
  void closing() override;

private:
  /// A text box, the field it shows, and the box whose text is stored in it.
  struct Field {
    QLineEdit *box;
    QString VereinSatz::*field;
    QLineEdit *source;
  };

  void connectFields();
  void connectButtons();
  void VereinZeigen(int n);
  void showAndFill(int n);
  void storeField(const Field &field);
  qint64 typedIndex() const;

  Store &m_store;
  std::unique_ptr<Ui::Form2> ui;
  QList<Field> m_fields;
  /// The record on the screen; what is stored goes there.
  int m_shown = 0;
};
