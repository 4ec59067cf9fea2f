#pragma once

namespace vesk {

class Spaltenumgebung;
struct Zustand;

/// Copies the calculation of the main window into the first free column of the data sheet: inputs and results
/// into its cells, the working record into the column's record. A column copied in power mode holds power and
/// distance in the same rows, in teal; its pacemaker distances are not known and stay.
/// The record must hold the input texts as shown. False when no column is free.
bool InFreieSpalteKopieren(Zustand& zustand, Spaltenumgebung& umgebung);

}  // namespace vesk
