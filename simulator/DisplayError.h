// Why a display cannot be read at all; caught by the display parser.
#pragma once

#include <cstdint>
#include <exception>
#include <string>

namespace qorltst::simulator {

class DisplayError : public std::exception {
 public:
  /// `result` is what `Parse` answers; `reason` is meant for the one who wrote the display.
  DisplayError(std::int32_t result, std::u16string reason) : result_(result), reason_(std::move(reason)) {}

  [[nodiscard]] std::int32_t Result() const noexcept { return result_; }
  [[nodiscard]] const std::u16string& Reason() const noexcept { return reason_; }
  [[nodiscard]] const char* what() const noexcept override { return "damaged display"; }

 private:
  std::int32_t result_;
  std::u16string reason_;
};

}  // namespace qorltst::simulator
