#pragma once

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

#include <stdlib.h>

/// A folder of its own for one test, under the system's temporary folder; it is gone with all that
/// it holds when the object goes.
class TempOrdner {
 public:
  TempOrdner() {
    std::string muster = (std::filesystem::temp_directory_path() / "polarkreis-XXXXXX").string();
    if (const char* gemacht = ::mkdtemp(muster.data())) pfad_ = gemacht;
  }
  ~TempOrdner() {
    std::error_code fehler;
    if (!pfad_.empty()) std::filesystem::remove_all(pfad_, fehler);
  }
  TempOrdner(const TempOrdner&) = delete;
  TempOrdner& operator=(const TempOrdner&) = delete;

  /// The folder's path, without a trailing separator.
  const std::string& pfad() const { return pfad_; }
  /// The path of a name in the folder.
  std::string pfad(std::string_view name) const { return pfad_ + "/" + std::string(name); }

  /// Writes the bytes as they stand; the folders on the way are made.
  void schreib(std::string_view name, std::string_view inhalt) const {
    std::filesystem::create_directories(std::filesystem::path(pfad(name)).parent_path());
    std::ofstream(pfad(name), std::ios::binary)
        .write(inhalt.data(), static_cast<std::streamsize>(inhalt.size()));
  }
  /// The bytes as they stand; empty for an absent file.
  std::string lies(std::string_view name) const {
    std::ifstream datei(pfad(name), std::ios::binary);
    return {std::istreambuf_iterator<char>(datei), std::istreambuf_iterator<char>()};
  }
  bool da(std::string_view name) const {
    std::error_code fehler;
    return std::filesystem::exists(std::filesystem::symlink_status(pfad(name), fehler));
  }
  /// Every name in the folder, hidden ones too, sorted.
  std::vector<std::string> namen() const {
    std::vector<std::string> alle;
    for (const auto& eintrag : std::filesystem::directory_iterator(pfad_))
      alle.push_back(eintrag.path().filename().string());
    std::sort(alle.begin(), alle.end());
    return alle;
  }

 private:
  std::string pfad_;
};
