#include "platform/System.h"

namespace vesk {

void SchreibgrenzenAlsFehler() {}  // They are errors.

void KeinenBusStarten() {}

bool BildschirmVorhanden() {
  return true;
}

}  // namespace vesk
