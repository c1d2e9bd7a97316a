// Lives of objects: many retrievals through the component's library, several apartments at once, parts that outlive
// their ticket.
#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <iostream>
#include <map>
#include <random>
#include <thread>

#include "automation/Identities.h"
#include "automation/Text.h"
#include "support/EdgeRetrieval.h"
#include "support/InstalledToolkit.h"
#include "support/MemoryWatch.h"
#include "support/ServerFile.h"
#include "support/TestServer.h"
#include "support/WholeModel.h"
#include "tests/support/Samples.h"

namespace qorltst::automation::test {
namespace {

/// Both libraries, and clients of them on the thread that asks.
struct Servers {
  ServerFile component{BesideProgram(u"QorlTST.dll")};
  ServerFile toolkit{BesideProgram(u"QorlHostToolkit.dll")};

  [[nodiscard]] Client NewTst() const {
    return Client(component.Create(SystemGuid(ComponentLibrary().IdentityOf(u"TST")->classId)));
  }

  [[nodiscard]] Client NewSession(const std::string& display) const {
    Client session(toolkit.Create(SystemGuid(kSessionClass)));
    const std::string path = SourcePath("examples/displays/" + display + ".txt");
    const Variant argument(std::u16string(path.begin(), path.end()));
    static_cast<void>(session.Call(u"Load", {argument.Get()}));
    return session;
  }

  /// What the loggers of a process have written is kept until somebody clears it.
  void ForgetTheLog() const { static_cast<void>(Client(toolkit.Create(SystemGuid(kLogReaderClass))).Call(u"Clear")); }
};

std::int32_t Retrieve(const Client& tst, const Client& session) {
  return tst.Call(u"RetrieveCurrentTst", {Dispatch(session.Get())}).Long();
}

std::u16string SummaryOf(const Client& tst) {
  std::u16string text = tst.Call(u"Text").Text();
  const Client segments(tst.Call(u"AirSegments").Object());
  for (std::int32_t i = 1; i <= segments.Call(u"Count").Long(); ++i) {
    text += Client(segments.Call(DISPID_VALUE, {Number(i)}).Object()).Call(u"Text").Text();
  }
  return text;
}

/// Bytes in use on all heaps of the process.
std::size_t BytesInUse() {
  std::array<HANDLE, 32> heaps{};
  const DWORD count = std::min(GetProcessHeaps(static_cast<DWORD>(heaps.size()), heaps.data()), DWORD{32});
  std::size_t bytes = 0;
  for (DWORD i = 0; i < count; ++i) {
    PROCESS_HEAP_ENTRY entry{};
    HeapLock(heaps[i]);
    while (HeapWalk(heaps[i], &entry)) {
      bytes += (entry.wFlags & PROCESS_HEAP_ENTRY_BUSY) != 0 ? entry.cbData : 0;
    }
    HeapUnlock(heaps[i]);
  }
  return bytes;
}

/// Whether the host's answer was taken for what it is; in the long form some displays are damaged or no tickets.
bool IsAnswer(std::int32_t code) { return code == 0 || code == 1000 || code == 1005 || code == 1006; }

TEST(Life, ManyRetrievalsLeaveNothingBehind) {
  const int rounds = testing::LongForm() ? 10000 : 1000;
  const Installed installed(kToolkitFile);
  const Servers servers;
  const std::vector<std::string> displays = DisplaysToWearOut();
  std::size_t early = 0;
  for (int i = 0; i < rounds; ++i) {
    const Client session = servers.NewSession(displays[static_cast<std::size_t>(i) % displays.size()]);
    const Client tst = servers.NewTst();
    const std::int32_t code = Retrieve(tst, session);
    ASSERT_TRUE(IsAnswer(code)) << code;
    ASSERT_EQ(SummaryOf(tst).empty(), code == 1000 || code == 1006);
    servers.ForgetTheLog();
    early = i == rounds / 10 ? BytesInUse() : early;
  }
  const std::size_t late = BytesInUse();
  EXPECT_EQ(servers.component.CanUnloadNow(), S_OK);
  EXPECT_EQ(servers.toolkit.CanUnloadNow(), S_OK);
  EXPECT_LT(late, early + 64 * 1024);
  std::cout << "figures: " << rounds << " retrievals, heap in use " << early << " bytes after a tenth, " << late
            << " at the end\n";
}

/// What a thread came to; checked when it has ended, for checks belong to one thread.
struct Outcome {
  int good = 0;
  std::string trouble;
};

void RetrieveOften(const Servers& servers, DWORD apartment, const std::map<std::string, std::u16string>& wanted,
                   Outcome& outcome) {
  if (FAILED(CoInitializeEx(nullptr, apartment))) {
    outcome.trouble = "no apartment";
    return;
  }
  {
    const Installed installed(kToolkitFile, apartment == COINIT_MULTITHREADED ? "Both" : "Apartment");
    for (int round = 0; round < 25; ++round) {
      for (const auto& [display, summary] : wanted) {
        const Client session = servers.NewSession(display);
        const Client tst = servers.NewTst();
        const std::int32_t code = Retrieve(tst, session);
        const bool good = IsAnswer(code) && SummaryOf(tst) == summary;
        outcome.good += good ? 1 : 0;
        outcome.trouble = good ? outcome.trouble : display + " gave " + std::to_string(code);
      }
    }
  }
  CoUninitialize();
}

TEST(Life, SeveralApartmentsRetrieveAtOnce) {
  const Servers servers;
  std::map<std::string, std::u16string> wanted;
  {
    const Installed installed(kToolkitFile);
    for (const std::string& display : DisplaysToWearOut()) {
      const Client session = servers.NewSession(display);
      const Client tst = servers.NewTst();
      Retrieve(tst, session);
      wanted[display] = SummaryOf(tst);
    }
  }
  std::array<Outcome, 3> outcomes;
  {
    std::vector<std::jthread> threads;
    for (std::size_t i = 0; i < outcomes.size(); ++i) {
      const DWORD apartment = i < 2 ? COINIT_APARTMENTTHREADED : COINIT_MULTITHREADED;
      threads.emplace_back([&servers, &wanted, apartment, &outcome = outcomes[i]] {
        RetrieveOften(servers, apartment, wanted, outcome);
      });
    }
  }
  int good = 0;
  for (const Outcome& outcome : outcomes) {
    EXPECT_EQ(outcome.trouble, "");
    EXPECT_EQ(outcome.good, 25 * static_cast<int>(wanted.size()));
    good += outcome.good;
  }
  servers.ForgetTheLog();
  EXPECT_EQ(servers.component.CanUnloadNow(), S_OK);
  EXPECT_EQ(servers.toolkit.CanUnloadNow(), S_OK);
  std::cout << "figures: " << good << " retrievals in two single-threaded apartments and a multithreaded one\n";
}

TEST(Life, PartsOutliveTheirTicketAndAreReleasedInAnyOrder) {
  std::mt19937 random(20261112);
  const int orders = testing::LongForm() ? 1000 : 60;
  std::size_t released = 0;
  for (int order = 0; order < orders; ++order) {
    const InUse before = CountInUse();
    {
      std::vector<ComRef<IUnknown>> parts;
      {
        EdgeRetrieval retrieval(order % 2 == 0 ? "rich" : "fc-side-trip");
        retrieval.Retrieve();
        ComRef<IDispatch> root;
        *root.Receive() = HandOut(retrieval.Root());
        parts = EveryInterface(root);
        // The ticket goes first: what is left belongs to the caller alone.
        parts.erase(parts.begin());
      }
      ASSERT_GT(parts.size(), 50U);
      std::ranges::shuffle(parts, random);
      for (ComRef<IUnknown>& part : parts) {
        if (const ComRef<IDispatch> face = Query<IDispatch>(part.Get())) {
          EXPECT_EQ(Client(face).Call(1).code, S_OK);
        }
        if (const ComRef<IEnumVARIANT> enumerator = Query<IEnumVARIANT>(part.Get())) {
          Variant item;
          ULONG taken = 0;
          EXPECT_TRUE(SUCCEEDED(enumerator->Next(1, &item.Get(), &taken)));
        }
        part = nullptr;
        ++released;
      }
    }
    ASSERT_EQ(CountInUse(), before) << "order " << order;
  }
  std::cout << "figures: " << released << " parts released in " << orders << " orders\n";
}

}  // namespace
}  // namespace qorltst::automation::test
