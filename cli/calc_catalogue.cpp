#include "calc.h"

namespace polarkreis::cli {

std::span<const Operation> Katalogoperationen() {
  return {};
}

}  // namespace polarkreis::cli
