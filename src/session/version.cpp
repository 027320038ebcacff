#include "session/version.h"

#include "model/text.h"

namespace velmar {

std::string DottedVersion(std::string_view short_version) {
  return Join(Mid(short_version, 4, 1), ".", Mid(short_version, 5, 1), ".",
              Right(short_version, 1));
}

std::string VersionDotted() {
  return DottedVersion(kVersionShort);
}

}  // namespace velmar
