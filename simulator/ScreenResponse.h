// A host answer that holds its text.
#pragma once

#include <string>

#include "toolkit/HostResponse.h"

namespace qorltst::simulator {

class ScreenResponse final : public toolkit::HostResponse {
 public:
  explicit ScreenResponse(std::u16string text) : text_(std::move(text)) {}

  std::u16string Text() override { return text_; }

 private:
  std::u16string text_;
};

}  // namespace qorltst::simulator
