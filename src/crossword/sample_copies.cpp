// SPDX-License-Identifier: MIT
#include "crossword/sample_copies.h"

#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <map>
#include <vector>

#include "crossword/identity.h"
#include "crossword/installments.h"
#include "crossword/reading.h"
#include "files/folder_entries.h"
#include "files/host_paths.h"
#include "files/run_time_error.h"

namespace kalvon {

namespace {

namespace fs = std::filesystem;

/// One crossword: the files whose names begin with its base.
struct Sample {
  bool numbered = false;
  std::vector<std::string> files = {};
};

std::map<std::string, Sample> SamplesAmong(const std::vector<std::string>& names) {
  std::map<std::string, Sample> samples;
  for (const std::string& name : names) {
    if (!name.ends_with(".qvm")) continue;
    const Installments found = FindInstallments(name, names);
    const std::string stem = name.substr(0, name.rfind('.'));
    Sample& sample = samples[found.Numbered() ? found.base : stem];
    sample.numbered = found.Numbered();
    sample.files.push_back(name);
    const std::string pack = WithExtension(name, "qvd");
    if (std::ranges::find(names, pack) != names.end()) sample.files.push_back(pack);
  }
  return samples;
}

/// The bases under which a crossword may lie, in the order in which they are tried.
std::vector<std::string> BasesFor(const std::string& base, bool numbered) {
  std::vector<std::string> bases = {base};
  for (char number = '2'; number <= '9'; ++number)
    bases.push_back(numbered ? base.substr(0, base.size() - 1) + number : base + '-' + number);
  return bases;
}

void Copy(const fs::path& from, const fs::path& to) {
  std::error_code failure;
  fs::copy_file(from, to, failure);
  // The original may be one that nobody writes.
  if (!failure) fs::permissions(to, fs::perms::owner_write, fs::perm_options::add, failure);
  if (!failure) return;
  const int error = failure == std::errc::no_space_on_device ? files::error::disk_full
                                                             : files::error::path_file_access;
  throw files::RuntimeError(error);
}

class SampleCopying {
 public:
  SampleCopying(const std::string& from, const std::string& into)
      : from_(files::HostPath(from)), into_(files::HostPath(into)) {}

  void Run() {
    for (const auto& [base, sample] : SamplesAmong(files::ReadFolder(from_).files))
      HandOut(base, sample);
  }

 private:
  void HandOut(const std::string& base, const Sample& sample) {
    const std::string first = files::LogicPath((from_ / sample.files.front()).string());
    const std::uint64_t content = ContentOf(ReadCrossword(first));
    for (const std::string& other : BasesFor(base, sample.numbered)) {
      const auto target = [&](const std::string& name) {
        return into_ / (other + name.substr(base.size()));
      };
      const bool is_free = std::ranges::none_of(
          sample.files, [&](const std::string& name) { return fs::exists(target(name)); });
      if (is_free) return CopyAll(sample, target);
      if (LiesAt(target(sample.files.front()).string(), content)) return;
    }
  }

  template <typename Target>
  void CopyAll(const Sample& sample, const Target& target) {
    try {
      for (const std::string& name : sample.files) Copy(from_ / name, target(name));
    } catch (const files::RuntimeError&) {
      std::error_code passed_over;
      for (const std::string& name : sample.files) fs::remove(target(name), passed_over);
      throw;
    }
  }

  fs::path from_;
  fs::path into_;
};

}  // namespace

void CopySamples(const std::string& from, const std::string& into) {
  SampleCopying(from, into).Run();
}

}  // namespace kalvon
