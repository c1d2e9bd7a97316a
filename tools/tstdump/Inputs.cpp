// See Inputs.h.
#include "tools/tstdump/Inputs.h"

#include <algorithm>
#include <cerrno>
#include <fstream>
#include <system_error>

namespace qorltst::tstdump {
namespace {

constexpr std::string_view kStandardInput = "-";

[[noreturn]] void Fail(const std::string& name, const std::error_code& reason) {
  throw InputError(name + ": " + reason.message());
}

std::unique_ptr<std::istream> Open(const std::string& name) {
  errno = 0;
  auto file = std::make_unique<std::ifstream>(name, std::ios::binary);
  if (!*file) {
    Fail(name, errno != 0 ? std::error_code(errno, std::generic_category()) : make_error_code(std::errc::io_error));
  }
  return file;
}

bool IsHidden(const std::filesystem::path& path) { return path.filename().native().starts_with('.'); }

}  // namespace

Inputs::Inputs(const Options& options, std::istream& standardInput)
    : standardInput_(standardInput),
      names_(options.files.rbegin(), options.files.rend()),
      listName_(options.filesFrom),
      nameEnd_(options.nulEnds ? '\0' : '\n') {}

std::optional<Input> Inputs::Next() {
  while (auto name = NextName()) {
    if (*name == kStandardInput) {
      return Input{*std::move(name), standardInput_};
    }
    if (!OpenFolder(*name)) {
      file_ = Open(*name);
      return Input{*std::move(name), *file_};
    }
  }
  return std::nullopt;
}

std::optional<std::string> Inputs::NextName() {
  if (names_.empty()) {
    return NextListed();
  }
  std::string name = std::move(names_.back());
  names_.pop_back();
  return name;
}

std::optional<std::string> Inputs::NextListed() {
  if (!listName_.empty()) {
    const std::string name = std::exchange(listName_, {});
    if (name != kStandardInput) {
      listFile_ = Open(name);
    }
    list_ = listFile_ ? listFile_.get() : &standardInput_;
  }
  std::string name;
  while (list_ != nullptr && std::getline(*list_, name, nameEnd_)) {
    if (!name.empty()) {
      return name;
    }
  }
  return std::nullopt;
}

bool Inputs::OpenFolder(const std::string& name) {
  std::error_code error;
  if (!std::filesystem::is_directory(name, error)) {
    return false;
  }
  std::vector<std::string> inside;
  auto entry = std::filesystem::directory_iterator(name, error);
  for (; !error && entry != std::filesystem::directory_iterator(); entry.increment(error)) {
    // A link to a folder may lead back to this one.
    const bool isLoop = entry->is_symlink() && entry->is_directory();
    if (!IsHidden(entry->path()) && !isLoop && (entry->is_regular_file() || entry->is_directory())) {
      inside.push_back(entry->path().native());
    }
  }
  if (error) {
    Fail(name, error);
  }
  std::ranges::sort(inside, std::ranges::greater());
  std::ranges::move(inside, std::back_inserter(names_));
  return true;
}

}  // namespace qorltst::tstdump
