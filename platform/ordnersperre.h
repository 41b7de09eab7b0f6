#pragma once

#include <functional>
#include <string>

#include "shell/deskriptor.h"

namespace polarkreis {

/// Keeps a folder for one program at a time, from the object's beginning to its end, so that no
/// change is lost between reading a file and saving it. Only programs that ask for it wait for each
/// other; on a file system that knows no such lock, and in a folder that can't be read, nobody
/// does. It goes with the process, however that ends, and leaves nothing behind.
class Ordnersperre {
 public:
  /// Waits while another program has the folder; `warten` is called once before that.
  explicit Ordnersperre(const std::string& ordner, const std::function<void()>& warten = {});

 private:
  platte::Deskriptor ordner_;
};

}  // namespace polarkreis
