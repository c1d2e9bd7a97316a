// The registered toolkit: found by its names, its class factories kept while somebody uses it.
#include <gtest/gtest.h>

#include <thread>
#include <vector>

#include "automation/LateBoundToolkit.h"
#include "support/InstalledToolkit.h"
#include "toolkit/HostNumbers.h"
#include "toolkit/RuntimeError.h"

namespace qorltst::automation::test {
namespace {

constexpr const char* kMissing = "NoSuchToolkit.dll";

std::int32_t ErrorOfCreating(toolkit::Toolkit& toolkit) {
  try {
    static_cast<void>(toolkit.CreateLogger());
    return 0;
  } catch (const toolkit::RuntimeError& error) {
    return error.Number();
  }
}

TEST(RegisteredToolkit, ItsParserReadsDisplays) {
  const Installed installed(kToolkitFile);
  const Ref<toolkit::ParseNode> parser = LateBoundToolkit::OfThisThread()->CreateParser();
  EXPECT_EQ(parser->Parse(u"NO TICKET HERE", toolkit::kParseMode), toolkit::kParseSuccess);
  EXPECT_FALSE(parser->FindNode(toolkit::NodeTypeId::TstRoot));
}

TEST(RegisteredToolkit, ItsLoggersTakeEntries) {
  const Installed installed(kToolkitFile);
  const Ref<toolkit::HostLogger> logger = LateBoundToolkit::OfThisThread()->CreateLogger();
  EXPECT_NO_THROW(logger->SetApplication(u"Test"));
  EXPECT_NO_THROW(logger->Write(toolkit::kLogTrace, u"source", 1, u"message"));
}

TEST(RegisteredToolkit, IsOneForAThreadWhileSomebodyHoldsIt) {
  const Ref<toolkit::Toolkit> held = LateBoundToolkit::OfThisThread();
  EXPECT_EQ(LateBoundToolkit::OfThisThread().Get(), held.Get());
}

TEST(RegisteredToolkit, OneThatEndsOnAnotherThreadIsForgottenOnItsOwn) {
  const Installed installed(kToolkitFile);
  Ref<toolkit::Toolkit> handedOver = LateBoundToolkit::OfThisThread();
  std::thread([held = std::move(handedOver)]() mutable { held = nullptr; }).join();
  // What may lie now where it was.
  const std::vector<std::vector<std::byte>> others(100, std::vector(sizeof(LateBoundToolkit), std::byte{0xFF}));
  const Ref<toolkit::Toolkit> next = LateBoundToolkit::OfThisThread();
  EXPECT_EQ(next->References(), 1U);
  EXPECT_EQ(ErrorOfCreating(*next), 0);
}

TEST(RegisteredToolkit, FurtherObjectsCostNoLookUp) {
  const Ref<toolkit::Toolkit> toolkit = LateBoundToolkit::OfThisThread();
  {
    const Installed installed(kToolkitFile);
    EXPECT_EQ(ErrorOfCreating(*toolkit), 0);
  }
  const Installed gone(kMissing);
  EXPECT_EQ(ErrorOfCreating(*toolkit), 0);
}

TEST(RegisteredToolkit, IsForgottenWhenNobodyHoldsIt) {
  {
    const Installed installed(kToolkitFile);
    EXPECT_EQ(ErrorOfCreating(*LateBoundToolkit::OfThisThread()), 0);
  }
  const Installed gone(kMissing);
  EXPECT_EQ(ErrorOfCreating(*LateBoundToolkit::OfThisThread()), 429);
}

TEST(RegisteredToolkit, AMissingOneRaises429UntilItIsInstalled) {
  const Ref<toolkit::Toolkit> toolkit = LateBoundToolkit::OfThisThread();
  {
    const Installed missing(kMissing);
    EXPECT_EQ(ErrorOfCreating(*toolkit), 429);
    EXPECT_THROW(static_cast<void>(toolkit->CreateParser()), toolkit::RuntimeError);
  }
  const Installed installed(kToolkitFile);
  EXPECT_EQ(ErrorOfCreating(*toolkit), 0);
}

}  // namespace
}  // namespace qorltst::automation::test
