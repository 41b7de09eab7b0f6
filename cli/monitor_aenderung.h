#pragma once

#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "monitoring/ftp_server.h"

namespace polarkreis::cli {

/// What a call changes in a plant's settings.
struct Einstellaenderung {
  std::vector<std::pair<ftp_server::Feld, std::string>> felder;
  std::optional<std::string> id;
  std::optional<int> server;  ///< 1 the default FTP server, 2 the user's own

  /// Puts the changes into the edit fields.
  void anwenden(ftp_server& pult) const;
};

/// The changes "KEY=VALUE" of `monitor set`. Throws `CLI::ValidationError`, which names what is
/// possible, for an unknown key and for a value that can't be kept; what can be kept but looks
/// wrong is told on standard error.
Einstellaenderung einstellungen_aus(const Captions& captions,
                                    const std::vector<std::string>& texte);

/// What a call changes in an alarm rule.
using Regelaenderung = std::vector<std::pair<Regelzeile, std::string>>;

/// The same for `monitor rule`.
Regelaenderung regel_aus(const Captions& captions, const std::vector<std::string>& texte);

}  // namespace polarkreis::cli
