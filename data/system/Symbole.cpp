#include <QGuiApplication>
#include <QPixmap>
#include <cstdio>

#include "ui/basis/Programmbild.h"

/// The program's picture as PNG: edge length in pixels, file, and again.
int main(int anzahl, char** argumente) {
  const QGuiApplication anwendung(anzahl, argumente);
  const QStringList texte = QGuiApplication::arguments();
  for (qsizetype i = 1; i + 1 < texte.size(); i += 2) {
    if (vesk::Programmbild(texte[i].toInt(), 1).save(texte[i + 1], "PNG")) continue;
    std::fprintf(stderr, "%s ließ sich nicht schreiben.\n", qPrintable(texte[i + 1]));
    return 1;
  }
  return 0;
}
