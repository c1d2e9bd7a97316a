// See Screen.h.
#include "frame/Screen.h"

#include "toolkit/RuntimeError.h"

namespace qorltst {
namespace {

void Demand(bool kept) {
  if (!kept) {
    throw toolkit::RuntimeError(toolkit::kInvalidCall);
  }
}

}  // namespace

std::u16string_view screen::Left(std::u16string_view text, Position length) {
  Demand(length >= 0);
  return text.substr(0, static_cast<std::size_t>(length));
}

std::u16string_view screen::Middle(std::u16string_view text, Position start, Position length) {
  return Left(From(text, start), length);
}

std::u16string_view screen::From(std::u16string_view text, Position start) {
  Demand(start >= 1);
  return start > Length(text) ? std::u16string_view() : text.substr(static_cast<std::size_t>(start) - 1);
}

screen::Position screen::Find(std::u16string_view text, std::u16string_view part) noexcept {
  const std::size_t found = text.empty() ? std::u16string_view::npos : text.find(part);
  return found == std::u16string_view::npos ? 0 : static_cast<Position>(found) + 1;
}

bool screen::IsBlank(std::u16string_view text) noexcept { return WithoutTrailingSpaces(text).empty(); }

std::u16string_view screen::WithoutTrailingSpaces(std::u16string_view text) noexcept {
  return text.substr(0, text.find_last_not_of(u' ') + 1);
}

}  // namespace qorltst
