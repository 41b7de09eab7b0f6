#pragma once

#include <cstddef>
#include <string>
#include <string_view>

/// The disk under the file store: whole files as bytes, by their path. Trouble is a value: the
/// system's error number (or one of ours), 0 for none.
namespace polarkreis::platte {

/// Errors of our own, beside those of the system.
inline constexpr int Nur_lesbar = -1;  // the file carries the read-only mark
inline constexpr int Zu_gross = -2;    // more than `Hoechstgroesse` bytes

inline constexpr std::size_t Hoechstgroesse = std::size_t{1} << 30;

/// Folder and name of a path; a path without a separator lies in ".".
struct Ort {
  std::string ordner;
  std::string name;
};
Ort ort(const std::string& pfad);
/// The path of a name in a folder.
inline std::string im_ordner(std::string ordner, std::string_view name) {
  ordner += '/';
  ordner += name;
  return ordner;
}

/// The file's bytes into `bytes`; on an error they stay as they were.
int lies(const std::string& pfad, std::string& bytes);
/// Makes an empty file where none is; never touches one that is there.
int lege_an(const std::string& pfad);
/// Puts a file of this content in place in one step, or leaves the old one whole: nothing else
/// remains. A link stays a link, mode and owner of an old file are kept, a read-only file and a
/// folder are refused; what is no regular file (a device) is written to directly. `sicher`: it
/// survives a power failure from here on. `privat`: only the owner may read and write it from here
/// on, whatever its mode was.
int ersetze(const std::string& pfad, std::string_view inhalt, bool sicher, bool privat = false);
/// Appends in one write; the file is made if it is absent.
int haenge_an(const std::string& pfad, std::string_view inhalt);
/// Appends a record in one write, or nothing: on a failure the file is cut back to what it held.
/// A read-only file is refused. `sicher`: the record survives a power failure from here on.
int haenge_satz_an(const std::string& pfad, std::string_view satz, bool sicher);
/// Removes a file, a read-only one too; a folder is refused, an absent file is no error.
int loesche(const std::string& pfad);
/// Makes the folder and those above it.
int mache_ordner(const std::string& ordner);
/// The same, and the folder itself is open to its owner alone, also where it was there, unless it
/// belongs to somebody else.
int mache_privaten_ordner(const std::string& ordner);

/// The spelling under which `name` stands in the folder: the exact one, else the first of another
/// case in byte order, else the empty text.
std::string finde(const std::string& ordner, std::string_view name);

/// Why, and what to do about it: one or two sentences for the user.
std::string grund(int fehler);

}  // namespace polarkreis::platte
