#include "engine/Version.h"

namespace vesk {

std::string VersionLang() {
  return std::to_string(VersionHaupt) + "." + std::to_string(VersionNeben) + "." +
         std::to_string(VersionRevision);
}

std::string VersionText() {
  return std::to_string(VersionHaupt) + std::to_string(VersionNeben) + std::to_string(VersionRevision);
}

}  // namespace vesk
