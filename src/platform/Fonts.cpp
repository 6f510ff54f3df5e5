#include "platform/Fonts.h"

#include <QFont>
#include <QStringList>

void substituteFonts() {
  QFont::insertSubstitution(QStringLiteral("Arial"), QStringLiteral("Liberation Sans"));
  QFont::insertSubstitution(QStringLiteral("Times"), QStringLiteral("Liberation Serif"));
  QFont::insertSubstitution(QStringLiteral("Fraktur BT"), QStringLiteral("Blankenburg_UNZ1A"));
  QFont::insertSubstitutions(QStringLiteral("Monospac821 BT"),
                             {QStringLiteral("Liberation Mono"), QStringLiteral("DejaVu Sans Mono")});
}
