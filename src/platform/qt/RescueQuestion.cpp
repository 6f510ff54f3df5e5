#include "platform/qt/RescueQuestion.h"

#include <QMessageBox>
#include <QPushButton>

bool askBeforeMenu(const QString &name, const QString &text, const QString &accept, const QString &decline,
                   bool acceptIsRisky) {
  QMessageBox box(QMessageBox::Question, QStringLiteral("VEXT"), text);
  box.setTextFormat(Qt::PlainText);
  box.setObjectName(name);
  box.setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  const auto *accepting = box.addButton(accept, QMessageBox::AcceptRole);
  auto *declining = decline.isEmpty() ? nullptr : box.addButton(decline, QMessageBox::RejectRole);
  if (acceptIsRisky)
    box.setDefaultButton(declining);
  box.exec();
  return box.clickedButton() == accepting;
}
