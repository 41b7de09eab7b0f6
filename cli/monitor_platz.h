#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "monitoring/ftp_server.h"
#include "platform/ftp.h"
#include "platform/ordnersperre.h"
#include "sitzung.h"

namespace polarkreis::cli {

/// What a call of `monitor` asks for.
struct Monitorwuensche {
  std::string id, teil;
  std::vector<std::string> aenderungen;
  int regel = 0;
  bool json = false, passwort = false, protokoll = false, speichern = false, erzwingen = false;
};

/// The monitoring ID as the user gave it, without blanks around. Throws `CLI::ValidationError` for
/// a blank one and for one with control characters.
std::string monitor_id(std::string_view text);

/// The desk of remote monitoring on the real world, opened as its form is. Throws `Abbruch` for a
/// register that is there but can't be read. What isn't saved is lost
/// with the object.
class Monitorplatz {
 public:
  /// `aendert`: the register will be saved. Such calls wait for each other.
  explicit Monitorplatz(Sitzung& sitzung, bool aendert = false);
  ~Monitorplatz();
  Monitorplatz(const Monitorplatz&) = delete;
  Monitorplatz& operator=(const Monitorplatz&) = delete;

  Programm& p;
  CurlFtp klient;
  ftp_server pult;

  /// Chooses the plant's row and gives it; tells if the ID stands in several rows, of which the
  /// first counts. Throws `Abbruch` where it stands in none.
  int waehle(const std::string& id);
  /// The same; an unknown ID takes the first row without one, and that is told. Throws `Abbruch`
  /// for a full register, for an ID that can be no folder's name and for one that differs from
  /// another's by capitals only.
  int waehle_oder_neu(const std::string& id);
  /// Throws `Abbruch` if another plant's ID differs from the chosen one's by capitals only: their
  /// local copies would be one file.
  void pruefe_verwechselbar() const;
  /// Throws `Abbruch` if the chosen plant's ID or the account's folder can't stand in an
  /// address.
  void pruefe_Adresse() const;
  /// Tells if the chosen plant's route is none that is known.
  void melde_unbekannte_Route() const;
  /// Throws `Abbruch` if the plant `alt`, which may be a new one, can't get the ID `neu`: another
  /// row has it or one like it, or it can be no folder's name.
  void pruefe_neue_ID(const std::string& alt, const std::string& neu) const;
  /// Throws `Abbruch` if a save would drop lines of the register's file, unless it is forced.
  void pruefe_speicherbar(bool erzwingen) const;
  /// Saves the register; throws `Abbruch` if it can't be written.
  void speichern();
  /// Why the last save failed.
  std::string speicherfehler() const;

 private:
  void mehrfach_melden(const std::string& id, int zeile) const;

  std::optional<Ordnersperre> sperre_;
};

}  // namespace polarkreis::cli
