#pragma once

#include <memory>
#include <string>

#include "diagnostics/arbeitsmappe.h"

namespace polarkreis {

/// Opens worksheets of both formats, ".xls" and ".xlsx"; the content decides, not the name. A
/// damaged or hostile file gives a reason, and takes neither the program down nor its memory.
class Arbeitsmappen : public Arbeitsmappenleser {
 public:
  std::unique_ptr<Arbeitsmappe> oeffne(const std::string& pfad, std::string& grund) override;
};

}  // namespace polarkreis
