#pragma once
#include "persistence/Antennendatei.h"
#include "persistence/Kabeldatei.h"
#include "station/Handlung.h"

namespace vesk {

/// Something of every kind to choose from, without a file.
inline const Kataloge& Probekataloge() {
  static const Kataloge kataloge = {
      KabelLaden("RG58,1.07,1.51,2.41,3.46,4.99,8.18,12,17.9,31.2,46.1,75.8,146\r\n"
                 "Hardline,0.1,0.1,0.2,0.2,0.4,0.6,0.9,1.2,2.1,3,4.5,8\r\n"),
      AntennenLaden("[Allgemein]\r\n"
                    "Dipol,Dipol,1.8,2.15,1,3.5,2.15,1,14,2.15,1,#\r\n"
                    "[Werkstatt]\r\n"
                    "Langyagi,Yagi,144,16.3,19,430,18,27,#\r\n")};
  return kataloge;
}

}  // namespace vesk
