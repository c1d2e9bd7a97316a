// The texts of the host error numbers as docs/result-codes.md tells them.
#include <gtest/gtest.h>

#include <fstream>
#include <map>
#include <regex>

#include "frame/EtLog.h"
#include "tests/support/Printers.h"

namespace qorltst {
namespace {

using Texts = std::map<int, std::string>;

/// The rows below the heading "number | text in the log".
Texts TextsOfPage() {
  Texts texts;
  std::ifstream page(QORL_SOURCE_DIR "/docs/result-codes.md");
  const std::regex row(R"(\| (\d+) \| (.+) \|)");
  bool isTable = false;
  for (std::string line; std::getline(page, line);) {
    std::smatch parts;
    isTable = line.starts_with("| number | text in the log |") || (isTable && line.starts_with("|"));
    if (isTable && std::regex_match(line, parts, row)) {
      texts[std::stoi(parts[1])] = parts[2];
    }
  }
  return texts;
}

TEST(ResultCodesPage, HasTheTextsOfTheLog) {
  constexpr int kBeyondAll = 10000;
  Texts texts;
  for (int number = 0; number < kBeyondAll; ++number) {
    if (const auto text = HostErrorText(number); !text.empty()) {
      texts[number] = testing::Readable(text);
    }
  }
  EXPECT_EQ(TextsOfPage(), texts);
}

}  // namespace
}  // namespace qorltst
