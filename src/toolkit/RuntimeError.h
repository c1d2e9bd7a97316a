// The failure that climbs through the component: a number, a source and a description.
#pragma once

#include <cstdint>
#include <exception>
#include <string>
#include <string_view>

namespace qorltst::toolkit {

/// Numbers of the runtime's own errors, as callers and logs know them.
enum RuntimeErrorNumber : std::int32_t {
  kInvalidCall = 5,
  kOverflow = 6,
  kOutOfMemory = 7,
  kSubscriptOutOfRange = 9,
  kTypeMismatch = 13,
  kInternalError = 51,
  kObjectNotSet = 91,
  kNoSuchMember = 438,
  kNamedArgumentNotFound = 448,
  kArgumentNotOptional = 449,
  kWrongArgumentCount = 450,
};

/// A runtime error. Toolkit calls raise it with the failing object's number and source; the component's own
/// runtime errors carry the component's name as their source.
class RuntimeError : public std::exception {
 public:
  /// A runtime error of the component itself: its source and description follow from the number.
  explicit RuntimeError(std::int32_t number);

  RuntimeError(std::int32_t number, std::u16string_view source, std::u16string_view description);

  [[nodiscard]] std::int32_t Number() const noexcept { return number_; }
  [[nodiscard]] const std::u16string& Source() const noexcept { return source_; }
  [[nodiscard]] const std::u16string& Description() const noexcept { return description_; }
  [[nodiscard]] const char* what() const noexcept override { return "runtime error"; }

 private:
  std::int32_t number_;
  std::u16string source_;
  std::u16string description_;
};

/// The runtime error that the exception being handled stands for. Call it inside a catch block only.
[[nodiscard]] RuntimeError CurrentRuntimeError();

}  // namespace qorltst::toolkit
