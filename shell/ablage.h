#pragma once

#include <cstdint>
#include <initializer_list>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "shell/items.h"
#include "shell/meldungen.h"

namespace polarkreis {

/// Tells whether a file of the watched folder may have changed. Without one the file store asks the
/// file system for each file's stamp; with one it asks only after a change.
class Aenderungswache {
 public:
  virtual ~Aenderungswache() = default;
  /// True if anything in the folder may have changed since the last call (also when in doubt).
  virtual bool vielleicht_geaendert() = 0;
};

/// What identifies one state of a file: a copy made of it may be used while this stays equal.
struct Dateistand {
  bool da = false;
  bool bewacht = false;  // a watch of the data folder sees each change: the file (or the absence of
                         // one) lies there itself, and neither a link nor a second name leads to it
  std::uint64_t geraet = 0;
  std::uint64_t inode = 0;
  std::int64_t groesse = 0;
  std::int64_t geaendert_ns = 0;  // time of the last change of content
  std::int64_t status_ns = 0;     // time of the last change of the inode
  bool operator==(const Dateistand&) const = default;
};

/// Whether a saved file must survive a power failure at once, or can be made again (results of a
/// run).
enum class Haltbarkeit { sicher, wiederholbar };

/// Who may read a file that is saved: those who might before, or its owner alone (passwords).
enum class Zugriff { wie_bisher, nur_Eigner };

/// The file store: every file of the program is opened here.
///
/// A name without "/" and "\" lies in the data folder `Datenordner`; any other name is a path as it
/// stands, with either sign. The exact spelling is tried first, then any case. Reading never fails:
/// an absent file gives empty texts. What is written is composed in memory and put in place in one
/// step when the number is closed; on a failure the old file stays whole, the message goes to
/// `letzter_fehler` and, once while it lasts, to the message log, and nothing else is left.
class Ablage {
 public:
  Ablage(std::string datenordner, Meldungen& meldungen);
  ~Ablage();
  Ablage(const Ablage&) = delete;
  Ablage& operator=(const Ablage&) = delete;

  /// The data folder, without a trailing separator.
  std::string Datenordner;

  /// --- Numbered files. Opening a number that is open closes it first.

  /// Opens for reading items. An absent file is created empty where `anlegen` holds and the folder
  /// allows it.
  void Datei_Lesen(std::string_view name, int nummer, bool anlegen = true);
  /// Opens for output; the folder is made if it is absent.
  void Datei_Schreiben(std::string_view name, int nummer, Haltbarkeit = Haltbarkeit::sicher);
  /// Opens for output behind what the file holds.
  void Datei_Anhaengen(std::string_view name, int nummer, Haltbarkeit = Haltbarkeit::sicher);
  /// Opens for fixed records of `laenge` bytes; 0 means 128.
  void Datei_Satz(std::string_view name, int nummer, int laenge);
  /// Closes the number; false if what was written could not be put in place (see `letzter_fehler`).
  bool Datei_Schliessen(int nummer);
  /// Closes every number; false if one of them failed.
  bool alle_schliessen();

  /// True while the number is open for output.
  bool schreibt(int nummer) const;
  /// True when the number has no item left, or is not open for reading.
  bool Ende(int nummer) const;
  /// The next item, or the empty text at the end.
  std::string Eingabe(int nummer);
  /// The next item into `target`; at the end `target` stays as it was and the result is false.
  bool Eingabe(int nummer, std::string& target);
  /// One line of quoted items.
  void Ausgabe(int nummer, std::initializer_list<std::string_view> items);
  /// Text as it stands, behind what the number holds so far.
  void Ausgabe_Text(int nummer, std::string_view text);
  /// Record n (from 1): bytes as they stand in the file, blanks where the file is too short.
  /// Writing pads with blanks, cuts at the record length, and grows the file with blank records.
  std::string Satz_Lesen(int nummer, int n);
  void Satz_Schreiben(int nummer, int n, std::string_view text);

  /// --- Whole files.

  /// The content as UTF-8, or nothing if the file is absent or can't be read (a folder, no
  /// permission): the message log then tells why, and so does `hindernis`, which is empty for an
  /// absent file.
  std::optional<std::string> lies_ganz(std::string_view name, std::string* hindernis = nullptr);
  /// The same as it stands in the file, bytes of any character set.
  std::optional<std::string> lies_bytes(std::string_view name, std::string* hindernis = nullptr);
  /// Puts `inhalt` in place in one step; false on a failure, and the old file is as it was. A
  /// read-only target is refused, a link stays a link, and a name that stands in another case is
  /// the target.
  bool schreib_ganz(std::string_view name, std::string_view inhalt,
                    Haltbarkeit = Haltbarkeit::sicher, Zugriff = Zugriff::wie_bisher);
  /// Makes the folder, and those above it, where it is absent, and opens it to its owner alone.
  /// False on a failure.
  bool mache_privaten_ordner(std::string_view name);
  /// Appends a record in one write, whole or not at all; false on a failure, and the file holds
  /// what it held. The file is made if it is absent.
  bool haenge_an(std::string_view name, std::string_view satz, Haltbarkeit = Haltbarkeit::sicher);
  /// Removes the file. The read-only mark is cleared first. False, and the fixed message in
  /// `letzter_fehler` (line end + "Can not delete/overwrite file:   - " + name + " - "), if it
  /// can't be removed.
  bool Datei_Loeschen(std::string_view name);
  /// Size in bytes; 0 for an absent file.
  std::int64_t Dateigroesse(std::string_view name) const;
  /// There and not of 0 bytes.
  bool vorhanden(std::string_view name) const { return Dateigroesse(name) > 0; }
  /// Names (no paths) of the files of a folder whose end is `endung` in any case, sorted; empty
  /// `ordner` is the data folder. Hidden files are not listed.
  std::vector<std::string> liste(std::string_view ordner, std::string_view endung) const;
  /// The path that the name stands for: an existing file's real spelling, or the path where it
  /// would be made.
  std::string pfad(std::string_view name) const;

  /// Why the last writing or deleting failed; empty after a success.
  const std::string& letzter_fehler() const { return letzter_fehler_; }
  Meldungen& meldungen() { return meldungen_; }

  /// --- Parsed copies of files (see `Dateikopie`).

  Dateistand stand(std::string_view name) const;
  /// Numbers that stay the same as long as no file needs to be checked again: within a
  /// `Schrittfolge` for a step, while outside each call gives new ones.
  struct Pruefmarken {
    std::uint64_t schritt;  // for any file
    std::uint64_t wache;    // for a file that is `bewacht`: with a watch, new only after a change
    std::uint64_t fuer(const Dateistand& stand) const { return stand.bewacht ? wache : schritt; }
  };
  Pruefmarken pruefmarken();
  /// Takes the watch over; it must watch the data folder, and be set anew when `Datenordner` is.
  void setze_wache(std::unique_ptr<Aenderungswache> wache);
  /// Switch of the benchmark: every use parses its file anew.
  bool immer_neu_lesen = false;

 private:
  friend class Schrittfolge;
  struct Nummer;
  Nummer* offen(int nummer) const;
  Nummer& oeffne(std::string_view name, int nummer, bool text);
  bool lege_ab(Nummer& nummer);
  bool misslungen(const std::string& wo, const std::string& warum);
  void neuer_schritt();
  void alles_pruefen();

  Meldungen& meldungen_;
  std::string letzter_fehler_;
  std::map<int, std::unique_ptr<Nummer>> nummern_;
  std::unique_ptr<Aenderungswache> wache_;
  std::uint64_t marken_ = 0;  // marks given so far: no two of them are equal
  Pruefmarken gueltig_{};
  int schrittfolgen_ = 0;
};

/// While one lives, files count as unchanged between two calls of `naechster`: a step of the run,
/// or one call from outside. An outer one wins: inside it an inner one's beginning checks nothing.
class Schrittfolge {
 public:
  explicit Schrittfolge(Ablage& ablage);
  ~Schrittfolge();
  Schrittfolge(const Schrittfolge&) = delete;
  Schrittfolge& operator=(const Schrittfolge&) = delete;
  void naechster();

 private:
  Ablage& ablage_;
};

/// A parsed copy of one file, used as long as the file is unchanged; no result may depend on it. A
/// file that changed within the clock's grain before it was read is parsed again at the next check.
template <class T>
class Dateikopie {
 public:
  /// The file's content as `lesen(std::optional<std::string>&&)` makes it; called again when the
  /// file, or the name, is another.
  template <class Lesen>
  const T& hol(Ablage& ablage, const std::string& name, Lesen&& lesen) {
    const Ablage::Pruefmarken marken = ablage.pruefmarken();
    if (marken.fuer(stand_) == marke_ && name == name_ && !ablage.immer_neu_lesen) return inhalt_;
    const Dateistand neu = ablage.stand(name);
    if (ablage.immer_neu_lesen || name != name_ || neu != stand_ || !verlaesslich_) {
      inhalt_ = lesen(ablage.lies_ganz(name));
      name_ = name;
      stand_ = neu;
      verlaesslich_ = alt_genug(neu);
    }
    marke_ = marken.fuer(neu);
    return inhalt_;
  }

 private:
  static bool alt_genug(const Dateistand& stand);
  T inhalt_{};
  std::string name_;
  Dateistand stand_;
  std::uint64_t marke_ = 0;
  bool verlaesslich_ = false;
};

/// True if the file's last change lies further back than the grain of the file system's clock.
bool laenger_unveraendert(const Dateistand& stand);

template <class T>
bool Dateikopie<T>::alt_genug(const Dateistand& stand) {
  return laenger_unveraendert(stand);
}

}  // namespace polarkreis
