#pragma once
#include "station/Rechenweg.h"

/// Writes the equations of a way: symbols, operations, and the digits that are printed.
namespace vesk {

/// What a quantity is called, wherever it occurs.
struct Zeichen {
  const char* symbol;
  const char* index;
  const char* einheit;
};

/// Shortest decimal that reads back as the same number, without an exponent.
std::string Dezimal(float wert);
std::string Dezimal(double wert);
/// `getippt` as digits only: as typed where it is a plain decimal number, else what is read from it. Throws
/// Laufzeitfehler(Ueberlauf).
std::string Dezimal(const std::string& getippt);
bool IstDezimalzahl(const std::string& text);

Groesse Wert(const Zeichen& zeichen, const std::string& zahl);
Groesse Wert(const Zeichen& zeichen, float zahl);

Ausdruck Term(Groesse groesse);
Ausdruck Term(const Zeichen& zeichen, float zahl);
Ausdruck Term(double konstante);

// Sums, differences and products go on to the right: a * b * c is one product.
Ausdruck operator+(Ausdruck links, Ausdruck rechts);
Ausdruck operator-(Ausdruck links, Ausdruck rechts);
Ausdruck operator*(Ausdruck links, Ausdruck rechts);
Ausdruck operator/(Ausdruck zaehler, Ausdruck nenner);
Ausdruck Wurzel(Ausdruck aus);
Ausdruck Hoch(Ausdruck basis, Ausdruck exponent);
Ausdruck Ln(Ausdruck von);

/// What the printed numbers give.
double Zahlenwert(const Ausdruck& ausdruck);

/// The result that the engine has, at six significant digits; at fewer where the singles put in do not carry
/// as many.
Gleichung Gleich(const Zeichen& ergebnis, Ausdruck formel, float wert);
Gleichung Gleich(const Zeichen& ergebnis, Ausdruck formel, double wert);
/// A quantity that a row of a table gives as it stands.
Gleichung Gleich(const Zeichen& ergebnis, double konstante);
/// A result with the two decimals that the data sheet shows; as above where single precision does not reach
/// so far.
Gleichung GleichImBlatt(const Zeichen& ergebnis, Ausdruck formel, const std::string& text, float wert);

}  // namespace vesk
