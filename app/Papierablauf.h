#pragma once

namespace vesk {

struct Mappe;
struct Plattform;
class Rueckfragen;

/// The papers on their way out. Each asks where to, tells what went wrong, and changes nothing of the
/// station.
void PdfSpeichern(const Mappe& mappe, Rueckfragen& rueckfragen, Plattform& plattform);
void PapiereDrucken(const Mappe& mappe, Plattform& plattform);
void DruckerEinrichten(Plattform& plattform);

}  // namespace vesk
