#include "platform/qt/RescueQuestion.h"

#include <QMessageBox>
#include <QPushButton>

bool askTakeOver(const QString &text) {
  QMessageBox box(QMessageBox::Question, QStringLiteral("VEXT - Rettung"), text);
  box.setTextFormat(Qt::PlainText);
  box.setObjectName(QStringLiteral("Rettung"));
  box.setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  const auto *take = box.addButton(QStringLiteral("Übernehmen"), QMessageBox::AcceptRole);
  box.addButton(QStringLiteral("Alles lassen, wie es ist"), QMessageBox::RejectRole);
  box.exec();
  return box.clickedButton() == take;
}
