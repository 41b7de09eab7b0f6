#include "platform/arbeitsmappen.h"

#include <cerrno>
#include <filesystem>
#include <string_view>

#include "platform/arbeitsmappe_xls.h"
#include "platform/arbeitsmappe_xlsx.h"
#include "shell/platte.h"

namespace polarkreis {

namespace {

constexpr std::uintmax_t Hoechstgroesse = std::uintmax_t{64} << 20;
constexpr std::string_view Kennung_xls = "\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1";
constexpr std::string_view Kennung_xlsx = "PK\x03\x04";

/// The file's bytes; else false, and why.
bool lies(const std::string& pfad, std::string& bytes, std::string& grund) {
  std::error_code fehler;
  const auto groesse = std::filesystem::file_size(pfad, fehler);
  if (!fehler && groesse > Hoechstgroesse) {
    grund = "it is larger than 64 MB: please split it.";
    return false;
  }
  const int nummer = fehler ? fehler.value() : platte::lies(pfad, bytes);
  if (nummer != 0) grund = platte::grund(nummer == EOPNOTSUPP ? EISDIR : nummer);
  return nummer == 0;
}

std::unique_ptr<Arbeitsmappe> lies_nach_Inhalt(const std::string& pfad, const std::string& bytes,
                                               std::string& grund) {
  if (bytes.starts_with(Kennung_xls)) return lies_xls(pfad, grund);
  if (bytes.starts_with(Kennung_xlsx)) return lies_xlsx(bytes, grund);
  grund = bytes.empty() ? "it is empty."
                        : "it is neither .xls nor .xlsx. Open it in your spreadsheet program and "
                          "save it as .xlsx.";
  return nullptr;
}

}  // namespace

std::unique_ptr<Arbeitsmappe> Arbeitsmappen::oeffne(const std::string& pfad, std::string& grund) {
  std::string bytes, warum;
  std::unique_ptr<Arbeitsmappe> mappe;
  if (lies(pfad, bytes, warum)) mappe = lies_nach_Inhalt(pfad, bytes, warum);
  if (!mappe) grund = "The worksheet " + pfad + " can't be read: " + warum;
  return mappe;
}

}  // namespace polarkreis
