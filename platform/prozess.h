#pragma once

#include <sys/types.h>

#include <string>
#include <string_view>
#include <vector>

#include "shell/start/programmstart.h"

namespace polarkreis {

/// Starts sibling programs that lie beside our own, without a shell: under the name as it stands,
/// without its ".exe", or in another case. Ends nothing.
class Prozessstart : public Programmstart {
 public:
  /// `ordner`: where the siblings lie; empty is the folder of this program.
  explicit Prozessstart(std::string ordner = {});
  ~Prozessstart() override;
  Prozessstart(const Prozessstart&) = delete;
  Prozessstart& operator=(const Prozessstart&) = delete;

  /// False for a name with a path and for a file that can't be run, too.
  bool starten(std::string_view programm) override;

  /// The path that a name stands for; empty if there is no such program.
  std::string finden(std::string_view programm) const;

 private:
  void beendete_abholen();
  std::string ordner_;
  std::vector<pid_t> laufende_;
};

}  // namespace polarkreis
