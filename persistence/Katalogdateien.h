#pragma once
#include <filesystem>

#include "persistence/Rueckfragen.h"
#include "station/Handlung.h"

namespace vesk {

/// Reads Kabel.txt and Antennen.txt of a directory; one that is missing there comes from `ersatz`, unless
/// that is empty. What is wrong with them is added to `meldungen`; whatever they hold, the catalogues can be
/// used.
Kataloge KatalogeLesen(const std::filesystem::path& verzeichnis, Meldungen& meldungen,
                       const std::filesystem::path& ersatz = {});

/// Whether a file is one of the catalogues, by its name.
bool IstKatalog(const std::filesystem::path& pfad);
/// Of a file that IstKatalog: after a question puts a copy of the file in place of the catalogue of its name,
/// which stays as "…-alt.txt". True: the catalogues are to be read again.
bool KatalogErsetzen(const std::filesystem::path& pfad, const std::filesystem::path& verzeichnis,
                     Rueckfragen& rueckfragen);

}  // namespace vesk
