#include <QApplication>

int main(int anzahl, char** argumente) {
  QApplication programm(anzahl, argumente);
  return 0;
}
