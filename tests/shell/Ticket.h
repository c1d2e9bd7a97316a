// A shell that has retrieved a recorded ticket; what it prints is kept.
#pragma once

#include <gtest/gtest.h>

#include <sstream>
#include <string>

#include "tools/shell/Shell.h"

namespace qorltst::shell {

class WithTicket : public testing::Test {
 protected:
  void SetUp() override {
    ASSERT_TRUE(shell_.Run("display " QORL_SOURCE_DIR "/examples/displays/rich.txt")) << out_.str();
    ASSERT_TRUE(shell_.Run("retrieve")) << out_.str();
    out_.str({});
  }

  /// What the shell prints at this line.
  std::string Said(std::string_view line) {
    out_.str({});
    shell_.Run(line);
    return out_.str();
  }

  std::ostringstream out_;
  Shell shell_{out_};
};

}  // namespace qorltst::shell
